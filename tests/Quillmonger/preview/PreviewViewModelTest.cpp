#include "Quillmonger/preview/PreviewViewModel.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/InLocale.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/ItemServices.h"
#include "tests/support/Records.h"

namespace {

using namespace std::chrono_literals;
using namespace quillmonger;
using testsupport::makeRecord;

std::string textOf(const TextPieces& pieces) {
  std::string text;
  for (std::size_t index = 0; index < pieces.count(); ++index)
    text += pieces.piece(index);
  return text;
}

class PreviewViewModelTest : public testing::Test, protected testsupport::ItemServices {
 protected:
  PreviewViewModel::Item itemOf(std::string bytes, std::string_view type = pasteboardtype::NSPasteboardTypeString) {
    return std::make_shared<ClipboardItemViewModel>(makeRecord(std::move(bytes), {}, type), services);
  }
  PreviewViewModel::Item itemOfApplication(const foundation::Url& url) {
    return std::make_shared<ClipboardItemViewModel>(
        makeRecord("text", {}, pasteboardtype::NSPasteboardTypeString, {"org.example.Editor", url}), services);
  }
  void runAll() {
    for (int round = 0; round < 3; ++round) {
      queue.run();
      runLoop.runPosted();
    }
  }
  void show(const PreviewViewModel::Item& item) {
    selectedItem.set(item);
    runAll();
  }
  std::string shownText() { return textOf(viewModel.content().value().text); }

  testsupport::InLocale locale{"en_US"};
  testsupport::VirtualRunLoop runLoop;
  testsupport::InlineBackgroundQueue queue;
  foundation::Published<PreviewViewModel::Item> selectedItem;
  foundation::Published<bool> isWindowVisible{true};
  PreviewViewModel viewModel{
      {selectedItem, isWindowVisible, settings.defaults, oculetManager, testsupport::englishText, queue, runLoop}};
};

TEST_F(PreviewViewModelTest, ShowsTheSelectedItem) {
  const auto item = itemOf("  two\nlines ");

  selectedItem.set(item);

  EXPECT_EQ(viewModel.item().value(), item);
  EXPECT_EQ(shownText(), "two\nlines");
  EXPECT_EQ(viewModel.content().value().details, item->details());
  EXPECT_FALSE(viewModel.content().value().isTextHidden);
}

TEST_F(PreviewViewModelTest, ShowsNothingWithoutASelection) {
  show(itemOf("text"));

  selectedItem.set(nullptr);

  EXPECT_EQ(viewModel.item().value(), nullptr);
  EXPECT_EQ(shownText(), "");
}

TEST_F(PreviewViewModelTest, ReadsNothingWhileTheWindowIsHidden) {
  isWindowVisible.set(false);
  show(itemOf(std::string(1'000'000, 'x')));

  EXPECT_EQ(viewModel.item().value(), nullptr);
  EXPECT_EQ(shownText(), "");
}

TEST_F(PreviewViewModelTest, ShowsTheItemAsSoonAsTheWindowIsVisible) {
  isWindowVisible.set(false);
  selectedItem.set(itemOf("text"));

  isWindowVisible.set(true);

  EXPECT_EQ(shownText(), "text");
}

TEST_F(PreviewViewModelTest, ShowsATextOfExactlyTheLimitInFullWithoutANotice) {
  show(itemOf(std::string(25'000, 'x')));

  EXPECT_EQ(shownText().size(), 25'000U);
  EXPECT_FALSE(viewModel.content().value().isTextHidden);
}

TEST_F(PreviewViewModelTest, ShowsTheNoticeAndAllCharactersOfATextWithOneMore) {
  show(itemOf(std::string(25'001, 'x')));

  EXPECT_EQ(shownText().size(), 25'001U);
  EXPECT_TRUE(viewModel.content().value().isTextHidden);
}

TEST_F(PreviewViewModelTest, CutsALongerTextAfterTheLimitAndOneCharacter) {
  show(itemOf(std::string(30'000, 'x')));

  EXPECT_EQ(shownText().size(), 25'001U);
  EXPECT_TRUE(viewModel.content().value().isTextHidden);
}

TEST_F(PreviewViewModelTest, ShowsNoNoticeOfAnyLengthWhenLongTextsAreNotHidden) {
  settings.defaults.set(keys::hideLongTextPreview, false);

  show(itemOf(std::string(300'000, 'x')));

  EXPECT_EQ(shownText().size(), 300'000U);
  EXPECT_FALSE(viewModel.content().value().isTextHidden);
}

TEST_F(PreviewViewModelTest, ShowsTheRestWhenTheSettingIsTurnedOff) {
  show(itemOf(std::string(30'000, 'x')));

  settings.defaults.set(keys::hideLongTextPreview, false);
  runAll();

  EXPECT_EQ(shownText().size(), 30'000U);
}

TEST_F(PreviewViewModelTest, ShowsTheBeginningOfALongTextAtOnceAndTheRestLater) {
  std::string text;
  while (text.size() < 100'000)
    text += "a line of words\n";
  settings.defaults.set(keys::hideLongTextPreview, false);

  selectedItem.set(itemOf(text));
  const std::string beginning = shownText();
  EXPECT_GT(beginning.size(), 1000U);
  EXPECT_TRUE(text.starts_with(beginning));
  EXPECT_EQ(viewModel.content().value().details, "100 KB");
  runAll();

  EXPECT_EQ(shownText() + "\n", text);
  EXPECT_EQ(viewModel.content().value().details, "100 KB • 6,250 lines");
}

TEST_F(PreviewViewModelTest, RecognisesALongJsonTextBesideTheMainThread) {
  const std::string text = "[" + std::string(100'000, ' ') + "1]";

  selectedItem.set(itemOf(text));
  EXPECT_EQ(jsonResult(*viewModel.content().value().results), nullptr);
  runAll();

  EXPECT_NE(jsonResult(*viewModel.content().value().results), nullptr);
}

TEST_F(PreviewViewModelTest, DropsALongTextThatIsNoLongerSelected) {
  selectedItem.set(itemOf(std::string(100'000, 'x')));

  selectedItem.set(itemOf("short"));
  runAll();

  EXPECT_EQ(shownText(), "short");
}

TEST_F(PreviewViewModelTest, ShowsTheDecodedLocationOfAFile) {
  show(itemOf("file:///home/anna/Quarterly%20report.pdf", pasteboardtype::NSPasteboardTypeFileURL));

  EXPECT_EQ(shownText(), "file:///home/anna/Quarterly report.pdf");
}

TEST_F(PreviewViewModelTest, TellsThePicturesSizeAndNotTheLines) {
  pictures.setPicture("picture", {1920, 1080});

  show(itemOf("picture", pasteboardtype::NSPasteboardTypePNG));

  EXPECT_EQ(viewModel.content().value().details, "7 bytes • 1,920×1,080");
}

TEST_F(PreviewViewModelTest, TellsTheSourceApplication) {
  const auto url = foundation::Url::fromFilePath("/apps/editor.desktop");
  naming.setDisplayName(url, "Editor");

  show(itemOfApplication(url));

  EXPECT_EQ(viewModel.footer().value().application, url);
  EXPECT_EQ(viewModel.footer().value().appName, "Editor");
}

TEST_F(PreviewViewModelTest, LeavesOutIconAndNameOfAnApplicationThatIsGone) {
  show(itemOfApplication(foundation::Url::fromFilePath("/apps/gone.desktop")));

  EXPECT_EQ(viewModel.footer().value().application, std::nullopt);
  EXPECT_EQ(viewModel.footer().value().appName, "");
}

TEST_F(PreviewViewModelTest, CountsPastesAsTheyHappen) {
  const auto item = itemOf("text");
  show(item);
  EXPECT_EQ(viewModel.footer().value().pasteCount, "Pasted 0 times");

  item->paste(ClipboardItemViewModel::Invert::no);

  EXPECT_EQ(viewModel.footer().value().pasteCount, "Pasted 1 time");
}

TEST_F(PreviewViewModelTest, TellsTheItemsAgeAsTimeGoesBy) {
  show(itemOf("text"));
  EXPECT_EQ(viewModel.footer().value().relativeDate, "0 seconds ago");

  runLoop.advance(5s);
  EXPECT_EQ(viewModel.footer().value().relativeDate, "5 seconds ago");
  runLoop.advance(2h);

  EXPECT_EQ(viewModel.footer().value().relativeDate, "2 hours ago");
}

TEST_F(PreviewViewModelTest, KeepsNoClockForAHiddenWindow) {
  show(itemOf("text"));
  isWindowVisible.set(false);
  int count = 0;
  const auto subscription = viewModel.footer().subscribe([&count](const PreviewFooter&) { ++count; });

  runLoop.advance(10s);

  EXPECT_EQ(count, 0);
}

}  // namespace
