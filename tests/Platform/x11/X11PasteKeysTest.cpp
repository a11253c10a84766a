#include "Platform/x11/X11PasteKeys.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <vector>

#include "tests/support/CapturedOutput.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/PrivateDisplay.h"
#include "tests/support/RealRunLoop.h"
#include "tests/support/x11/KeyboardClient.h"

namespace {

using testsupport::KeyboardClient;
using Key = KeyboardClient::Key;
using namespace std::chrono_literals;

constexpr std::uint32_t evdevControl = 29;
constexpr std::uint32_t evdevShift = 42;
constexpr std::uint32_t evdevV = 47;
constexpr std::uint32_t evdevPeriod = 52;
constexpr std::uint32_t evdevCapsLock = 58;
constexpr std::uint16_t virtualV = 9;
constexpr std::uint16_t virtualPeriod = 47;

class X11PasteKeys : public testing::Test {
 protected:
  X11PasteKeys() : m_us(m_display.name()), m_target(m_display.name()), m_writtenWindow(m_us.window()) {
    connectWith({});
    m_target.showWindow();
    m_target.focusWindow();
    m_us.ownClipboard();
  }

  void connectWith(const platform::X11PasteKeys::Patience& patience) {
    m_pasteKeys = platform::X11PasteKeys::connect(
        [this] {
          ++m_attempts;
          return m_writtenWindow.load();
        },
        [](const std::string& windowClass) { return windowClass == "our-terminal"; },
        [this] { return m_isChordHeld.load(); }, patience, m_display.name());
  }
  void useLayouts(const std::string& names) {
    testsupport::ChildProcess layouts({"setxkbmap", "-layout", names}, {m_display.environment()});
    ASSERT_TRUE(m_runLoop.runUntil([&layouts] { return layouts.isFinished(); }));
    ASSERT_EQ(layouts.exitCode(), 0);
  }

  [[nodiscard]] bool isPasted(std::size_t keys = 4) {
    return m_runLoop.runUntil([this, keys] { return m_target.receivedKeys().size() >= keys; });
  }
  // Long enough for the wait to end in vain, told by the line that it prints then.
  [[nodiscard]] std::string outputOfAPasteInVain() {
    connectWith({.withPrograms = 20ms, .withHands = 40ms});
    const testsupport::CapturedOutput output;
    m_pasteKeys->postPasteKeyEvents(virtualV);
    static_cast<void>(m_runLoop.runUntil([&output] { return output.text().ends_with('\n'); }));
    return output.text();
  }

  const std::vector<Key> m_paste{{evdevControl, true, 0},
                                 {evdevV, true, XCB_MOD_MASK_CONTROL},
                                 {evdevV, false, XCB_MOD_MASK_CONTROL},
                                 {evdevControl, false, XCB_MOD_MASK_CONTROL}};

  testsupport::PrivateDisplay m_display;
  testsupport::RealRunLoop m_runLoop;
  KeyboardClient m_us;
  KeyboardClient m_target;
  std::atomic<std::uint32_t> m_writtenWindow;
  std::atomic<int> m_attempts = 0;
  std::atomic<bool> m_isChordHeld = false;
  std::unique_ptr<platform::X11PasteKeys> m_pasteKeys;
};

TEST_F(X11PasteKeys, PressControlAndVInTheFocusedWindow) {
  m_pasteKeys->postPasteKeyEvents(virtualV);

  ASSERT_TRUE(isPasted());
  EXPECT_EQ(m_target.receivedKeys(), m_paste);
}

TEST_F(X11PasteKeys, AddShiftForATerminal) {
  m_target.setWindowClass("xterm", "XTerm");

  m_pasteKeys->postPasteKeyEvents(virtualV);

  ASSERT_TRUE(isPasted(6));
  EXPECT_EQ(m_target.receivedKeys()[1], (Key{evdevShift, true, XCB_MOD_MASK_CONTROL}));
  EXPECT_EQ(m_target.receivedKeys()[2], (Key{evdevV, true, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT}));
}

TEST_F(X11PasteKeys, AddShiftForWhatTheCallerCallsATerminal) {
  m_target.setWindowClass("our-terminal", "Whatever");

  m_pasteKeys->postPasteKeyEvents(virtualV);

  ASSERT_TRUE(isPasted(6));
  EXPECT_EQ(m_target.receivedKeys()[1].evdev, evdevShift);
}

TEST_F(X11PasteKeys, WaitUntilTheUserLetsGoOfTheModifiers) {
  m_us.press(evdevShift);
  m_pasteKeys->postPasteKeyEvents(virtualV);
  ASSERT_TRUE(isPasted(1));  // the user's Shift, which the window sees too

  m_us.release(evdevShift);

  ASSERT_TRUE(isPasted(6));
  const auto& keys = m_target.receivedKeys();
  EXPECT_EQ(std::vector<Key>(keys.begin() + 2, keys.end()), m_paste);
}

TEST_F(X11PasteKeys, WaitUntilTheUserLetsGoOfTheChordThatPastes) {
  m_isChordHeld = true;
  m_pasteKeys->postPasteKeyEvents(virtualV);
  m_attempts = 0;
  ASSERT_TRUE(m_runLoop.runUntil([this] { return m_attempts > 2; }));
  EXPECT_TRUE(m_target.receivedKeys().empty());

  m_isChordHeld = false;

  ASSERT_TRUE(isPasted());
  EXPECT_EQ(m_target.receivedKeys(), m_paste);
}

TEST_F(X11PasteKeys, PressNothingWhileAChordStaysHeld) {
  m_isChordHeld = true;

  EXPECT_EQ(outputOfAPasteInVain(), "Paste keys not pressed: a global shortcut is held\n");

  EXPECT_TRUE(m_target.receivedKeys().empty());
}

TEST_F(X11PasteKeys, WaitUntilAnotherWindowHasTheFocus) {
  m_us.showWindow();
  m_us.setWindowProcess(static_cast<std::uint32_t>(getpid()));
  m_us.focusWindow();
  m_pasteKeys->postPasteKeyEvents(virtualV);

  m_target.focusWindow();

  ASSERT_TRUE(isPasted());
  EXPECT_TRUE(m_us.receivedKeys().empty());
}

TEST_F(X11PasteKeys, PressNothingWhileAnotherProgramOwnsTheClipboard) {
  m_target.ownClipboard();

  EXPECT_EQ(outputOfAPasteInVain(), "Paste keys not pressed: the clipboard isn't ours\n");

  EXPECT_TRUE(m_target.receivedKeys().empty());
}

TEST_F(X11PasteKeys, PressNothingWhileTheClipboardHoldsAnEarlierWrite) {
  m_writtenWindow = 0;

  EXPECT_EQ(outputOfAPasteInVain(), "Paste keys not pressed: the clipboard isn't ours\n");
  EXPECT_TRUE(m_target.receivedKeys().empty());
}

TEST_F(X11PasteKeys, PressNothingInOurOwnWindow) {
  m_us.showWindow();
  m_us.setWindowProcess(static_cast<std::uint32_t>(getpid()));
  m_us.focusWindow();

  EXPECT_EQ(outputOfAPasteInVain(), "Paste keys not pressed: no other window has the keyboard\n");

  EXPECT_TRUE(m_us.receivedKeys().empty());
}

TEST_F(X11PasteKeys, PressNothingWhileAModifierStaysHeld) {
  m_us.press(evdevControl);

  EXPECT_EQ(outputOfAPasteInVain(), "Paste keys not pressed: a modifier key is held\n");

  EXPECT_EQ(m_target.receivedKeys().size(), 1U);
}

TEST_F(X11PasteKeys, PressNothingInAWindowThatTheUserWentToWithAModifierHeld) {
  connectWith({.withPrograms = 0ms, .withHands = 1h});
  m_us.press(evdevShift);
  const testsupport::CapturedOutput output;
  m_pasteKeys->postPasteKeyEvents(virtualV);
  ASSERT_TRUE(m_runLoop.runUntil([this] { return m_attempts > 1; }));
  KeyboardClient other(m_display.name());
  other.showWindow();
  other.focusWindow();

  m_us.release(evdevShift);

  ASSERT_TRUE(m_runLoop.runUntil([&output] { return output.text().ends_with('\n'); }));
  EXPECT_EQ(output.text(), "Paste keys not pressed: the user went to another window\n");
  EXPECT_EQ(other.receivedKeys().size(), 1U);  // the user's own
}

TEST_F(X11PasteKeys, PressTheKeyThatTheyAreGiven) {
  useLayouts("us(dvorak)");

  m_pasteKeys->postPasteKeyEvents(virtualPeriod);

  ASSERT_TRUE(isPasted());
  EXPECT_EQ(m_target.receivedKeys()[1].evdev, evdevPeriod);
}

TEST_F(X11PasteKeys, LeaveCapsLockOutOfTheChordAndOnAfterwards) {
  m_us.tap(evdevCapsLock);
  ASSERT_TRUE(isPasted(2));

  m_pasteKeys->postPasteKeyEvents(virtualV);

  ASSERT_TRUE(isPasted(6));
  const auto keys = m_target.receivedKeys();
  EXPECT_EQ(std::vector<Key>(keys.begin() + 2, keys.end()), m_paste);
  m_us.tap(evdevV);
  ASSERT_TRUE(isPasted(8));
  EXPECT_EQ(m_target.receivedKeys().back().state, XCB_MOD_MASK_LOCK);
}

TEST_F(X11PasteKeys, PressTheKeyUnderTheLayoutThatHasTheLetterAndGoBackToTheUsersOwn) {
  useLayouts("us,ru");
  m_us.lockGroup(1);
  m_us.tap(evdevV);
  ASSERT_TRUE(isPasted(2));
  const auto underRussian = m_target.receivedKeys().back().state;

  m_pasteKeys->postPasteKeyEvents(virtualV);

  ASSERT_TRUE(isPasted(6));
  const auto keys = m_target.receivedKeys();
  EXPECT_EQ(std::vector<Key>(keys.begin() + 2, keys.end()), m_paste);
  m_us.tap(evdevV);
  ASSERT_TRUE(isPasted(8));
  EXPECT_NE(underRussian, 0);
  EXPECT_EQ(m_target.receivedKeys().back().state, underRussian);
}

TEST_F(X11PasteKeys, PressTheKeyOfTheLetterUnderAnotherGroupWherever) {
  useLayouts("us(dvorak),ru,gr");
  m_us.lockGroup(2);

  m_pasteKeys->postPasteKeyEvents(virtualV);

  ASSERT_TRUE(isPasted());
  EXPECT_EQ(m_target.receivedKeys()[1], (Key{evdevPeriod, true, XCB_MOD_MASK_CONTROL}));
}

TEST_F(X11PasteKeys, GiveAKeyboardWithoutTheLetterASecondGroupThatHasItAndTypeAsBeforeAfterwards) {
  useLayouts("ru");
  const auto own = m_target.symbols(evdevV);

  m_pasteKeys->postPasteKeyEvents(virtualV);

  ASSERT_TRUE(isPasted());
  constexpr std::uint16_t secondGroup = 1U << 13U;
  EXPECT_EQ(m_target.receivedKeys()[1], (Key{evdevV, true, XCB_MOD_MASK_CONTROL | secondGroup}));
  ASSERT_GE(m_target.symbols(evdevV).size(), 4U);
  EXPECT_EQ(m_target.symbols(evdevV)[2], xcb_keysym_t{'v'});
  EXPECT_EQ(m_target.symbols(evdevV)[0], own[0]);
  EXPECT_EQ(m_target.symbols(evdevV)[1], own[1]);
  m_us.tap(evdevV);
  ASSERT_TRUE(isPasted(6));
  EXPECT_EQ(m_target.receivedKeys().back().state, 0);
}

}  // namespace
