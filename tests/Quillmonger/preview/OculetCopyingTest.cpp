#include "Quillmonger/preview/OculetCopying.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "Quillmonger/capture/ClipboardManager.h"
#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/detection/OculetManager.h"
#include "tests/support/FakeApplicationBundles.h"
#include "tests/support/FakeBundleProvider.h"
#include "tests/support/FakePasteStep.h"
#include "tests/support/FakePasteboard.h"
#include "tests/support/FakeStoreContext.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
using namespace quillmonger;

class OculetCopyingTest : public testing::Test {
 protected:
  void runAll() {
    for (int round = 0; round < 3; ++round) {
      queue.run();
      runLoop.runPosted();
    }
  }
  std::shared_ptr<const OculetResults> resultsOf(std::string_view text) {
    return std::make_shared<const OculetResults>(makeOculetManager()->detect(text));
  }
  std::string textOfWrite(std::size_t index) {
    const auto data = pasteboard.writes().at(index).dataForType(std::string(pasteboardtype::NSPasteboardTypeString));
    return data ? *data->bytes() : "(absent)";
  }

  testsupport::VirtualRunLoop runLoop;
  testsupport::InlineBackgroundQueue queue;
  testsupport::TestDefaults settings;
  testsupport::FakePasteboard pasteboard{runLoop};
  testsupport::FakeStoreContext context;
  testsupport::FakeBundleProvider bundleProvider;
  testsupport::FakePasteStep pasteStep;
  foundation::NotificationCenter notificationCenter;
  testsupport::FakeApplicationBundles bundles;
  IgnoredApps ignoredApps{settings.defaults, bundles};
  ClipboardManager manager{
      {pasteboard, context, bundleProvider, pasteStep, runLoop, notificationCenter, settings.defaults, ignoredApps}};
  int alertCount = 0;
  OculetCopying copying{{[this](const foundation::Data& text) { manager.writeToPasteboard(text); },
                         [this] { ++alertCount; }, queue, runLoop}};
};

TEST_F(OculetCopyingTest, PutsTheMarkerAndTheTextOnTheClearedPasteboard) {
  copying.copy([] { return "2023-11-14T22:13:20Z"; });
  runAll();

  ASSERT_EQ(pasteboard.writes().size(), 1U);
  EXPECT_EQ(pasteboard.writes()[0].types(),
            (std::vector<std::string>{"com.ondalis.Quillmonger", "public.utf8-plain-text"}));
  EXPECT_EQ(textOfWrite(0), "2023-11-14T22:13:20Z");
}

TEST_F(OculetCopyingTest, IsCapturedByTheMonitorLikeAnyOtherCopy) {
  std::vector<ClipboardManaging::Record> added;
  const auto subscription = manager.newItemPublisher().subscribe(
      [&added](const ClipboardManaging::Record& record) { added.push_back(record); });
  manager.startListening();

  copying.copy([] { return "#FF8000"; });
  runAll();
  runLoop.advance(150ms);

  ASSERT_EQ(added.size(), 1U);
  EXPECT_EQ(*added[0]->data(pasteboardtype::NSPasteboardTypeString)->bytes(), "#FF8000");
  EXPECT_TRUE(added[0]->data().contains(pasteboardtype::appMarker));
}

TEST_F(OculetCopyingTest, RewritesJsonOnlyWhenItIsAskedForAndBesideTheMainThread) {
  copying.copyJson(resultsOf("{\"a\":[1,2]}"), JsonForm::beautified);
  runLoop.runPosted();
  EXPECT_TRUE(pasteboard.writes().empty());
  runAll();

  EXPECT_EQ(textOfWrite(0), *jsonResult(*resultsOf("{\"a\":[1,2]}"))->beautified());
  EXPECT_NE(textOfWrite(0).find('\n'), std::string::npos);
}

TEST_F(OculetCopyingTest, CopiesJsonOnOneLine) {
  copying.copyJson(resultsOf("{ \"a\" :\n [1, 2] }"), JsonForm::minified);
  runAll();

  EXPECT_EQ(textOfWrite(0), "{\"a\":[1,2]}");
  EXPECT_EQ(alertCount, 0);
}

TEST_F(OculetCopyingTest, ShowsTheAlertAndLeavesThePasteboardAloneWhenTheTextNoLongerParses) {
  OculetResults results;
  results.push_back(std::make_unique<const JsonDetector::JsonResult>("{\"a\": "));
  copying.copyJson(std::make_shared<const OculetResults>(std::move(results)), JsonForm::beautified);
  runAll();

  EXPECT_EQ(alertCount, 1);
  EXPECT_TRUE(pasteboard.writes().empty());
}

TEST_F(OculetCopyingTest, CopiesTheLastOfSeveralPresses) {
  copying.copy([] { return "first"; });
  copying.copy([] { return "second"; });
  copying.copy([] { return "third"; });
  runAll();

  ASSERT_EQ(pasteboard.writes().size(), 1U);
  EXPECT_EQ(textOfWrite(0), "third");
}

}  // namespace
