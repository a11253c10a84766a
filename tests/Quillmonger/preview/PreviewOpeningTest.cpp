#include "Quillmonger/preview/PreviewOpening.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/ItemServices.h"
#include "tests/support/Records.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace quillmonger;
using testsupport::makeRecord;

class PreviewOpeningTest : public testing::Test, protected testsupport::ItemServices {
 protected:
  PreviewOpening::Item itemOf(std::string text, std::string_view type = pasteboardtype::NSPasteboardTypeString) {
    return std::make_shared<ClipboardItemViewModel>(makeRecord(std::move(text), {}, type), services);
  }
  PreviewOpening::Item picture() { return itemOf("picture", pasteboardtype::NSPasteboardTypePNG); }
  void select(PreviewOpening::Item item) { selectedItem.set(std::move(item)); }
  void openMainWindow() {
    isMainWindowVisible = true;
    notificationCenter.post("ClipboardActivated");
  }

  foundation::Published<PreviewOpening::Item> selectedItem;
  foundation::NotificationCenter notificationCenter;
  bool isMainWindowVisible = true;
  int showCount = 0;
  testsupport::InlineBackgroundQueue queue;
  testsupport::VirtualRunLoop runLoop;
  ItemInspection inspection{queue, runLoop};
  PreviewOpening opening{{selectedItem, notificationCenter, settings.defaults, inspection,
                          [this] { return isMainWindowVisible; }, [this] { ++showCount; }}};
};

TEST_F(PreviewOpeningTest, OpensForASelectedPicture) {
  select(picture());

  EXPECT_EQ(showCount, 1);
}

TEST_F(PreviewOpeningTest, StaysClosedWhenAPicturesColorIsFoundLater) {
  const auto item = picture();
  select(item);
  showCount = 0;

  static_cast<void>(inspection.imageColor(item));
  queue.run();
  runLoop.runPosted();

  EXPECT_EQ(showCount, 0);
}

TEST_F(PreviewOpeningTest, OpensForADateAColorAndJson) {
  select(itemOf("2026-11-21T02:25:50Z"));
  select(itemOf("#ff7a59"));
  select(itemOf("{\"a\": 1}"));

  EXPECT_EQ(showCount, 3);
}

TEST_F(PreviewOpeningTest, OpensForALongDocumentOnceItIsKnownToBeOne) {
  select(itemOf("[\"" + std::string(100'000, 'x') + "\"]"));
  EXPECT_EQ(showCount, 0);

  queue.run();
  runLoop.runPosted();

  EXPECT_EQ(showCount, 1);
}

TEST_F(PreviewOpeningTest, StaysClosedForALongDocumentThatIsNoLongerSelected) {
  select(itemOf("[\"" + std::string(100'000, 'x') + "\"]"));
  select(itemOf("plain"));

  queue.run();
  runLoop.runPosted();

  EXPECT_EQ(showCount, 0);
}

TEST_F(PreviewOpeningTest, StaysClosedForAPlainText) {
  select(itemOf("plain"));

  EXPECT_EQ(showCount, 0);
}

TEST_F(PreviewOpeningTest, StaysClosedWithoutASelection) {
  select(nullptr);
  openMainWindow();

  EXPECT_EQ(showCount, 0);
}

TEST_F(PreviewOpeningTest, StaysClosedForResultsWhileTheHistoryIsHidden) {
  settings.defaults.set(keys::autoOpenOculet, true);
  isMainWindowVisible = false;

  select(itemOf("#ff7a59"));

  EXPECT_EQ(showCount, 0);
}

TEST_F(PreviewOpeningTest, StaysClosedForAPictureWhileTheHistoryIsHidden) {
  isMainWindowVisible = false;

  select(picture());

  EXPECT_EQ(showCount, 0);
}

TEST_F(PreviewOpeningTest, OpensWithTheHistoryWhenAPictureIsSelected) {
  isMainWindowVisible = false;
  select(picture());

  openMainWindow();

  EXPECT_EQ(showCount, 1);
}

TEST_F(PreviewOpeningTest, OpensWithTheHistoryWhenAResultIsSelected) {
  isMainWindowVisible = false;
  select(itemOf("#ff7a59"));

  openMainWindow();

  EXPECT_EQ(showCount, 1);
}

TEST_F(PreviewOpeningTest, HeedsTheSettingForPictures) {
  settings.defaults.set(keys::autoOpenImagePreview, false);

  select(picture());
  EXPECT_EQ(showCount, 0);

  select(itemOf("#ff7a59"));
  EXPECT_EQ(showCount, 1);
}

TEST_F(PreviewOpeningTest, HeedsTheSettingForResults) {
  settings.defaults.set(keys::autoOpenOculet, false);

  select(itemOf("#ff7a59"));
  EXPECT_EQ(showCount, 0);

  select(picture());
  EXPECT_EQ(showCount, 1);
}

TEST_F(PreviewOpeningTest, DoesNothingWhenTheSelectionIsOnlyConfirmed) {
  const auto item = picture();
  select(item);

  select(item);

  EXPECT_EQ(showCount, 1);
}

}  // namespace
