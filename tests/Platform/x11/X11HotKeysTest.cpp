#include "Platform/x11/X11HotKeys.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

#include "tests/support/ChildProcess.h"
#include "tests/support/PrivateDisplay.h"
#include "tests/support/RealRunLoop.h"
#include "tests/support/x11/KeyboardClient.h"

namespace {

using keyboardshortcuts::EventStatus;
using keyboardshortcuts::EventType;
using keyboardshortcuts::HotKeyIdentifier;
using testsupport::KeyboardClient;

constexpr HotKeyIdentifier seven{0x4B424853, 7};
constexpr HotKeyIdentifier eight{0x4B424853, 8};
constexpr std::uint32_t evdevV = 47;
constexpr std::uint32_t evdevB = 48;
constexpr std::uint32_t evdevShift = 42;
constexpr std::uint32_t evdevSuper = 125;
constexpr std::uint32_t evdevCapsLock = 58;
constexpr std::uint32_t evdevNumLock = 69;
constexpr std::uint32_t virtualV = 9;
constexpr std::uint32_t virtualB = 11;
constexpr std::uint32_t shiftAndCommand = 0x300;
constexpr std::uint16_t shiftAndSuperState = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_4;

class X11HotKeys : public testing::Test {
 protected:
  X11HotKeys() : m_user(m_display.name()), m_hotKeys(platform::X11HotKeys::connect(m_runLoop, m_display.name())) {
    m_hotKeys->setHotKeyHandler([this](const HotKeyIdentifier& identifier, EventType type) {
      m_told.emplace_back(identifier.id, type);
      return EventStatus::noErr;
    });
  }

  [[nodiscard]] bool isTold(std::size_t count) {
    return m_runLoop.runUntil([this, count] { return m_told.size() >= count; });
  }

  void pressChord() {
    m_user.press(evdevSuper);
    m_user.press(evdevShift);
    m_user.press(evdevV);
  }
  void releaseChord() {
    m_user.release(evdevV);
    m_user.release(evdevShift);
    m_user.release(evdevSuper);
  }

  using Told = std::vector<std::pair<std::uint32_t, EventType>>;
  testsupport::PrivateDisplay m_display;
  testsupport::RealRunLoop m_runLoop;
  KeyboardClient m_user;
  Told m_told;
  std::unique_ptr<platform::X11HotKeys> m_hotKeys;
};

TEST_F(X11HotKeys, TellPressAndReleaseOfAChord) {
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));

  pressChord();
  releaseChord();

  ASSERT_TRUE(isTold(2));
  EXPECT_EQ(m_told, (Told{{7, EventType::keyDown}, {7, EventType::keyUp}}));
}

TEST_F(X11HotKeys, TellTheReleaseWhenTheModifiersWentFirst) {
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));
  pressChord();

  m_user.release(evdevSuper);
  m_user.release(evdevShift);
  m_user.release(evdevV);

  ASSERT_TRUE(isTold(2));
  EXPECT_EQ(m_told.back(), std::pair(std::uint32_t{7}, EventType::keyUp));
}

TEST_F(X11HotKeys, HoldAChordUntilItsKeyIsLetGoOfWhateverBecomesOfItsModifiers) {
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));
  EXPECT_FALSE(m_hotKeys->isChordHeld());
  pressChord();
  ASSERT_TRUE(isTold(1));

  m_user.release(evdevSuper);
  m_user.release(evdevShift);
  EXPECT_TRUE(m_hotKeys->isChordHeld());
  m_user.release(evdevV);

  ASSERT_TRUE(isTold(2));
  EXPECT_FALSE(m_hotKeys->isChordHeld());
}

TEST_F(X11HotKeys, HoldNothingAfterTwoChordsThatWereRolled) {
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));
  ASSERT_TRUE(m_hotKeys->registerHotKey(eight, virtualB, shiftAndCommand));
  pressChord();
  m_user.press(evdevB);
  ASSERT_TRUE(isTold(2));

  m_user.release(evdevV);
  m_user.release(evdevB);
  m_user.release(evdevShift);
  m_user.release(evdevSuper);

  ASSERT_TRUE(isTold(4));
  EXPECT_FALSE(m_hotKeys->isChordHeld());
}

TEST_F(X11HotKeys, HoldTheSecondOfTwoRolledChordsUntilItsOwnKeyIsLetGoOf) {
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));
  ASSERT_TRUE(m_hotKeys->registerHotKey(eight, virtualB, shiftAndCommand));
  m_user.showWindow();
  pressChord();
  m_user.press(evdevB);
  ASSERT_TRUE(isTold(2));

  m_user.release(evdevV);
  ASSERT_TRUE(isTold(3));
  EXPECT_TRUE(m_hotKeys->isChordHeld());
  m_user.release(evdevB);

  ASSERT_TRUE(isTold(4));
  EXPECT_EQ(m_told,
            (Told{{7, EventType::keyDown}, {8, EventType::keyDown}, {7, EventType::keyUp}, {8, EventType::keyUp}}));
  EXPECT_FALSE(m_hotKeys->isChordHeld());
  EXPECT_TRUE(m_runLoop.runUntil([this] { return m_user.grabKeyboard(); })) << "the keyboard is free again";
}

TEST_F(X11HotKeys, WorkWhateverLockIsOn) {
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));
  m_user.tap(evdevCapsLock);
  m_user.tap(evdevNumLock);

  pressChord();
  releaseChord();

  EXPECT_TRUE(isTold(2));
}

TEST_F(X11HotKeys, WorkWhateverLayoutIsActive) {
  testsupport::ChildProcess layouts({"setxkbmap", "-layout", "us,ru"}, {m_display.environment()});
  ASSERT_TRUE(m_runLoop.runUntil([&layouts] { return layouts.isFinished(); }));
  ASSERT_EQ(layouts.exitCode(), 0);
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));
  m_user.lockGroup(1);

  pressChord();
  releaseChord();

  EXPECT_TRUE(isTold(2));
}

TEST_F(X11HotKeys, FollowAChangeOfTheKeyboardMapping) {
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));
  testsupport::ChildProcess layouts({"setxkbmap", "-layout", "de", "-option", "altwin:swap_alt_win"},
                                    {m_display.environment()});
  ASSERT_TRUE(m_runLoop.runUntil([&layouts] { return layouts.isFinished(); }));
  ASSERT_EQ(layouts.exitCode(), 0);
  constexpr std::uint32_t evdevAlt = 56;  // types Super now

  const bool isFollowed = m_runLoop.runUntil([this] {
    m_user.press(evdevAlt);
    m_user.press(evdevShift);
    m_user.press(evdevV);
    m_user.release(evdevV);
    m_user.release(evdevShift);
    m_user.release(evdevAlt);
    return !m_told.empty();
  });

  EXPECT_TRUE(isFollowed);
}

TEST_F(X11HotKeys, TellAHeldKeyAsOnePress) {
  testsupport::ChildProcess fast({"xset", "r", "rate", "20", "200"}, {m_display.environment()});
  ASSERT_TRUE(m_runLoop.runUntil([&fast] { return fast.isFinished(); }));
  ASSERT_EQ(fast.exitCode(), 0);
  KeyboardClient other(m_display.name());
  other.showWindow();
  other.focusWindow();
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));
  // The same key without the modifiers reaches the window, and shows that keys do repeat here.
  m_user.press(evdevV);
  ASSERT_TRUE(m_runLoop.runUntil([&other] { return other.receivedKeys().size() > 4; }));
  m_user.release(evdevV);

  pressChord();
  ASSERT_TRUE(isTold(1));
  static_cast<void>(m_runLoop.runUntil([this] { return m_told.size() > 1; }, foundation::Seconds(0.2)));
  releaseChord();

  ASSERT_TRUE(isTold(2));
  EXPECT_EQ(m_told, (Told{{7, EventType::keyDown}, {7, EventType::keyUp}}));
}

TEST_F(X11HotKeys, TellTheReleaseOfAChordThatIsRegisteredAnewWhileItIsHeld) {
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));
  pressChord();
  ASSERT_TRUE(isTold(1));
  m_hotKeys->unregisterHotKey(seven);
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));

  releaseChord();

  ASSERT_TRUE(isTold(2));
  EXPECT_EQ(m_told.back(), std::pair(std::uint32_t{7}, EventType::keyUp));
}

TEST_F(X11HotKeys, TellTheFirstOfTwoHotKeysOfOneChord) {
  ASSERT_TRUE(m_hotKeys->registerHotKey(eight, virtualV, shiftAndCommand));
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));

  pressChord();
  releaseChord();

  ASSERT_TRUE(isTold(2));
  EXPECT_EQ(m_told, (Told{{7, EventType::keyDown}, {7, EventType::keyUp}}));
}

TEST_F(X11HotKeys, KeepTheChordForTheSecondHotKeyWhenTheFirstGoes) {
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));
  ASSERT_TRUE(m_hotKeys->registerHotKey(eight, virtualV, shiftAndCommand));
  m_hotKeys->unregisterHotKey(seven);

  pressChord();
  releaseChord();

  ASSERT_TRUE(isTold(2));
  EXPECT_EQ(m_told.front(), std::pair(std::uint32_t{8}, EventType::keyDown));
}

TEST_F(X11HotKeys, TellRawKeysPastTheKeyboardGrabOfAMenu) {
  std::vector<std::pair<std::uint32_t, std::uint32_t>> pressed;
  m_hotKeys->setRawKeyHandler([&pressed](std::uint32_t keyCode, std::uint32_t modifiers, EventType type) {
    if (type == EventType::keyDown) pressed.emplace_back(keyCode, modifiers);
    return EventStatus::noErr;
  });
  KeyboardClient menu(m_display.name());
  menu.showWindow();
  ASSERT_TRUE(menu.grabKeyboard());
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));  // by now the raw keys are watched

  pressChord();
  releaseChord();

  ASSERT_TRUE(m_runLoop.runUntil([&pressed] { return pressed.size() >= 3; }));
  EXPECT_EQ(pressed.back(), std::pair(virtualV, shiftAndCommand));
  EXPECT_TRUE(m_told.empty());
}

TEST_F(X11HotKeys, TellNoRawKeysOnceNobodyListens) {
  std::size_t count = 0;
  const auto listen = [&count](std::uint32_t, std::uint32_t, EventType) {
    ++count;
    return EventStatus::noErr;
  };
  m_hotKeys->setRawKeyHandler(listen);
  m_hotKeys->setRawKeyHandler({});
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));

  pressChord();
  releaseChord();

  ASSERT_TRUE(isTold(2));
  EXPECT_EQ(count, 0U);
}

TEST_F(X11HotKeys, RefuseAChordThatAnotherProgramHolds) {
  ASSERT_TRUE(m_user.grab(evdevV, shiftAndSuperState));

  EXPECT_FALSE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));
}

TEST_F(X11HotKeys, LeaveNothingGrabbedOfARefusedChord) {
  KeyboardClient other(m_display.name());
  ASSERT_TRUE(other.grab(evdevV, shiftAndSuperState | XCB_MOD_MASK_LOCK));

  ASSERT_FALSE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));

  EXPECT_TRUE(m_runLoop.runUntil([this] { return m_user.grab(evdevV, shiftAndSuperState); }));
}

TEST_F(X11HotKeys, GiveTheChordBackWhenItIsUnregistered) {
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));
  ASSERT_FALSE(m_user.grab(evdevV, shiftAndSuperState));

  m_hotKeys->unregisterHotKey(seven);

  EXPECT_TRUE(m_runLoop.runUntil([this] { return m_user.grab(evdevV, shiftAndSuperState); }));
}

TEST_F(X11HotKeys, RefuseAKeyThatNoKeyboardHas) {
  EXPECT_FALSE(m_hotKeys->registerHotKey(seven, 0xFFFF, shiftAndCommand));
}

TEST_F(X11HotKeys, SayThatAnotherProgramHoldsAChord) {
  ASSERT_TRUE(m_user.grab(evdevV, shiftAndSuperState));

  EXPECT_TRUE(m_hotKeys->isHeldByAnother(virtualV, shiftAndCommand));
}

TEST_F(X11HotKeys, SayThatAnotherProgramHoldsAChordWithALockOn) {
  ASSERT_TRUE(m_user.grab(evdevV, shiftAndSuperState | XCB_MOD_MASK_LOCK));

  EXPECT_TRUE(m_hotKeys->isHeldByAnother(virtualV, shiftAndCommand));
}

TEST_F(X11HotKeys, LeaveNothingGrabbedOfAChordThatWasAskedAbout) {
  EXPECT_FALSE(m_hotKeys->isHeldByAnother(virtualV, shiftAndCommand));
  EXPECT_FALSE(m_hotKeys->isHeldByAnother(virtualV, shiftAndCommand));

  EXPECT_TRUE(m_runLoop.runUntil([this] { return m_user.grab(evdevV, shiftAndSuperState); }));
}

TEST_F(X11HotKeys, KeepAChordOfTheirOwnThatWasAskedAbout) {
  constexpr std::uint32_t bitOfNoModifier = 0x800000;
  ASSERT_TRUE(m_hotKeys->registerHotKey(seven, virtualV, shiftAndCommand));

  EXPECT_FALSE(m_hotKeys->isHeldByAnother(virtualV, shiftAndCommand));
  EXPECT_FALSE(m_hotKeys->isHeldByAnother(virtualV, shiftAndCommand | bitOfNoModifier));

  pressChord();
  releaseChord();
  EXPECT_TRUE(isTold(2));
}

TEST_F(X11HotKeys, SayThatNobodyHoldsAKeyThatNoKeyboardHas) {
  EXPECT_FALSE(m_hotKeys->isHeldByAnother(0xFFFF, shiftAndCommand));
}

TEST_F(X11HotKeys, AreAbsentWithoutAnXServer) {
  EXPECT_EQ(platform::X11HotKeys::connect(m_runLoop, "/nowhere:0"), nullptr);
}

}  // namespace
