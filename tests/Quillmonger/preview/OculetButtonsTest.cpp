#include "Quillmonger/preview/OculetButtons.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "Quillmonger/input/Action.h"
#include "tests/support/FakeLocalEventMonitor.h"
#include "tests/support/InLocale.h"
#include "tests/support/InTimeZone.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/ItemServices.h"
#include "tests/support/Records.h"

namespace {

using namespace std::chrono_literals;
using namespace quillmonger;
using testsupport::makeRecord;

class OculetButtonsTest : public testing::Test, protected testsupport::ItemServices {
 protected:
  void show(std::string text) {
    selectedItem.set(std::make_shared<ClipboardItemViewModel>(makeRecord(std::move(text), {}), services));
    runAll();
  }
  void runAll() {
    for (int round = 0; round < 3; ++round) {
      queue.run();
      runLoop.runPosted();
    }
  }
  void press(std::size_t button) {
    buttons.press(button);
    runAll();
  }
  // The digit keys 1 to 9.
  bool pressKey(std::size_t digit, std::uint32_t modifierFlags = optionFlag) {
    const bool isSwallowed = keyboard.press(quickPasteKeyCodes.at(digit - 1), modifierFlags);
    runAll();
    return isSwallowed;
  }
  [[nodiscard]] std::optional<std::size_t> copied() { return buttons.copied().value(); }

  testsupport::InLocale locale{"en_US"};
  testsupport::InTimeZone zone{"UTC"};
  testsupport::VirtualRunLoop runLoop;
  testsupport::InlineBackgroundQueue queue;
  testsupport::FakeLocalEventMonitor keyboard;
  foundation::Published<PreviewViewModel::Item> selectedItem;
  foundation::Published<bool> isWindowVisible{true};
  std::vector<std::string> copies;
  int alertCount = 0;
  PreviewViewModel preview{
      {selectedItem, isWindowVisible, settings.defaults, oculetManager, testsupport::englishText, queue, runLoop}};
  OculetCopying copying{{[this](const foundation::Data& text) { copies.push_back(*text.bytes()); },
                         [this] { ++alertCount; }, queue, runLoop}};
  OculetButtons buttons{{preview, copying, keyboard, runLoop}};
};

TEST_F(OculetButtonsTest, CopyTheValuesOfADateFromTheTopDown) {
  show("1700000000");

  for (std::size_t button = 0; button < 3; ++button)
    press(button);

  EXPECT_EQ(copies,
            (std::vector<std::string>{"1700000000", "2023-11-14T22:13:20Z", "Tue, 14 Nov 2023 22:13:20 +0000"}));
}

TEST_F(OculetButtonsTest, CopyTheValuesOfAColor) {
  show("#FF8000");

  press(2);

  EXPECT_EQ(copies, std::vector<std::string>{preview.content().value().colorRows.at(2).value});
}

TEST_F(OculetButtonsTest, CopyJsonBeautifiedFirst) {
  show("{ \"a\" : [1] }");

  press(1);
  press(0);

  ASSERT_EQ(copies.size(), 2U);
  EXPECT_EQ(copies[0], "{\"a\":[1]}");
  EXPECT_NE(copies[1].find('\n'), std::string::npos);
}

TEST_F(OculetButtonsTest, AreNumberedOnThroughAllPanels) {
  const auto panel = [](const char* value) { return std::vector<OculetRow>{{"hex_string", value}}; };
  PreviewContent content;
  content.dateRows = panel("date");
  content.colorRows = panel("color");
  OculetResults results;
  results.push_back(std::make_unique<const JsonDetector::JsonResult>("[1]"));
  content.results = std::make_shared<const OculetResults>(std::move(results));
  preview.content().set(content);

  for (std::size_t button = 0; button < 4; ++button)
    press(button);

  ASSERT_EQ(copies.size(), 4U);
  EXPECT_EQ(copies[0], "date");
  EXPECT_EQ(copies[1], "color");
  EXPECT_NE(copies[2].find('\n'), std::string::npos);
  EXPECT_EQ(copies[3], "[1]");
}

TEST_F(OculetButtonsTest, DoNothingForANumberBeyond) {
  for (const char* text : {"plain", "#FF8000", "{\"a\": 1}"}) {
    show(text);
    press(3);
  }

  EXPECT_TRUE(copies.empty());
}

TEST_F(OculetButtonsTest, ArePressedByOptionAndADigit) {
  show("1700000000");

  EXPECT_TRUE(pressKey(2));

  EXPECT_EQ(copies, std::vector<std::string>{"2023-11-14T22:13:20Z"});
}

TEST_F(OculetButtonsTest, ArePressedOnceByAKeyThatIsHeldDown) {
  show("1700000000");

  EXPECT_TRUE(keyboard.send({KeyEvent::Type::keyDown, quickPasteKeyCodes.at(0), optionFlag, true}));
  runAll();

  EXPECT_TRUE(copies.empty());
}

TEST_F(OculetButtonsTest, LeaveEveryOtherChordAlone) {
  show("1700000000");

  for (const std::uint32_t flags :
       {0U, std::uint32_t{shiftFlag}, std::uint32_t{commandFlag}, std::uint32_t{controlFlag}, commandFlag | optionFlag,
        shiftFlag | optionFlag, controlFlag | optionFlag})
    EXPECT_FALSE(pressKey(1, flags)) << flags;
  EXPECT_FALSE(keyboard.press(36, optionFlag));
  EXPECT_FALSE(keyboard.send({KeyEvent::Type::flagsChanged, 58, optionFlag}));

  EXPECT_TRUE(copies.empty());
}

TEST_F(OculetButtonsTest, LeaveTheDigitToTheSearchFieldWhileThePreviewIsHidden) {
  show("1700000000");
  isWindowVisible.set(false);

  EXPECT_FALSE(pressKey(1));

  EXPECT_TRUE(copies.empty());
}

TEST_F(OculetButtonsTest, KeepADigitBeyondTheLastOneOutOfTheSearchField) {
  show("1700000000");

  EXPECT_TRUE(pressKey(4));

  EXPECT_TRUE(copies.empty());
}

TEST_F(OculetButtonsTest, TickForASecondOnceTheTextIsCopied) {
  show("1700000000");
  buttons.press(1);
  EXPECT_EQ(copied(), std::nullopt);
  runAll();
  EXPECT_EQ(copied(), 1U);

  runLoop.advance(999ms);
  EXPECT_EQ(copied(), 1U);
  runLoop.advance(1ms);

  EXPECT_EQ(copied(), std::nullopt);
}

TEST_F(OculetButtonsTest, TickAFullSecondForEachPress) {
  show("1700000000");
  press(0);
  runLoop.advance(900ms);
  press(2);

  runLoop.advance(900ms);

  EXPECT_EQ(copied(), 2U);
}

TEST_F(OculetButtonsTest, KeepTheTickWhenTheCopyComesToTheTopOfTheHistory) {
  show("1700000000");
  press(1);

  show("2023-11-14T22:13:20Z");

  EXPECT_EQ(copied(), 1U);
}

TEST_F(OculetButtonsTest, LoseTheTickForAnotherItem) {
  show("1700000000");
  press(1);

  show("1700000001");

  EXPECT_EQ(copied(), std::nullopt);
}

TEST_F(OculetButtonsTest, DoNotTickForAnItemThatIsNoLongerOnShow) {
  show("1700000000");
  buttons.press(1);

  show("1700000001");

  EXPECT_EQ(copies.size(), 1U);
  EXPECT_EQ(copied(), std::nullopt);
}

TEST_F(OculetButtonsTest, DoNotTickWhenJsonCannotBeRewritten) {
  OculetResults results;
  results.push_back(std::make_unique<const JsonDetector::JsonResult>("{\"a\": "));
  show("plain");
  PreviewContent content;
  content.results = std::make_shared<const OculetResults>(std::move(results));
  preview.content().set(content);

  press(0);

  EXPECT_EQ(alertCount, 1);
  EXPECT_EQ(copied(), std::nullopt);
}

}  // namespace
