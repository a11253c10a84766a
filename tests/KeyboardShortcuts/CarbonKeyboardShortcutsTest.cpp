#include "KeyboardShortcuts/CarbonKeyboardShortcuts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/FakeHotKeyService.h"

namespace {

using namespace keyboardshortcuts;
using testsupport::FakeHotKeyService;
using Log = std::vector<std::string>;

constexpr FakeHotKeyService::Chord chordV{9, 0x300};
constexpr FakeHotKeyService::Chord chordX{7, 0x300};
constexpr Shortcut shortcutV{9, 0x300};
constexpr Shortcut shortcutX{7, 0x300};

class CarbonKeyboardShortcutsTest : public testing::Test {
 protected:
  bool add(const Shortcut& shortcut, const std::string& name) {
    return registry.registerShortcut(
        shortcut, [this, name](const Shortcut&) { log.push_back(name + " down"); },
        [this, name](const Shortcut&) { log.push_back(name + " up"); });
  }

  FakeHotKeyService service;
  CarbonKeyboardShortcuts registry{service};
  Log log;
};

TEST_F(CarbonKeyboardShortcutsTest, TellsPressAndReleaseWithTheChord) {
  std::vector<Shortcut> fired;
  registry.registerShortcut(
      shortcutV, [&](const Shortcut& shortcut) { fired.push_back(shortcut); },
      [&](const Shortcut& shortcut) { fired.push_back(shortcut); });

  service.press(chordV);
  service.release(chordV);

  EXPECT_EQ(fired, (std::vector<Shortcut>{shortcutV, shortcutV}));
}

TEST_F(CarbonKeyboardShortcutsTest, GivesEveryHotKeyAnIdentifierOfItsOwnThatIsNeverUsedAgain) {
  add(shortcutV, "v");
  registry.unregisterShortcut(shortcutV);

  add(shortcutX, "x");

  EXPECT_EQ(service.hotKeys().begin()->first, (HotKeyIdentifier{0x4B424853, 2}));
}

TEST_F(CarbonKeyboardShortcutsTest, DoesNotHandleAHotKeyOfAnotherSignature) {
  add(shortcutV, "v");

  EXPECT_EQ(service.tell({0x12345678, 1}), EventStatus::eventNotHandledErr);
  EXPECT_EQ(service.tell({0x4B424853, 2}), EventStatus::eventNotHandledErr);
  EXPECT_EQ(log, Log{});
  EXPECT_EQ(service.tell({0x4B424853, 1}), EventStatus::noErr);
}

TEST_F(CarbonKeyboardShortcutsTest, RegistersNoChordThatDoesNotFit32BitsWithoutSign) {
  EXPECT_FALSE(add({-1, 0x100}, "negative"));
  EXPECT_FALSE(add({1LL << 32, 0x100}, "large"));
  EXPECT_FALSE(add({9, 1LL << 32}, "modifiers"));

  EXPECT_EQ(service.count(), 0U);
}

TEST_F(CarbonKeyboardShortcutsTest, RegistersBothOfTwoHotKeysOfOneChordAndLeavesTheChoiceToTheService) {
  add(shortcutV, "first");
  add(shortcutV, "second");

  EXPECT_EQ(service.count(chordV), 2U);
  service.press(chordV);
  EXPECT_EQ(log, Log{"first down"});
}

TEST_F(CarbonKeyboardShortcutsTest, ARawKeyRunsTheFirstHotKeyOfItsChord) {
  add(shortcutV, "first");
  add(shortcutV, "second");
  registry.setMenuOpen(true);

  EXPECT_EQ(service.tellRawKey(chordV), EventStatus::noErr);
  EXPECT_EQ(service.tellRawKey(chordX), EventStatus::eventNotHandledErr);

  EXPECT_EQ(log, Log{"first down"});
}

TEST_F(CarbonKeyboardShortcutsTest, HasNothingWithTheServiceWhileItIsNotEnabledWhetherAMenuIsOpenOrNot) {
  add(shortcutV, "v");

  registry.setEnabled(false);
  registry.setMenuOpen(true);
  EXPECT_EQ(service.count(), 0U);
  EXPECT_FALSE(service.listens());
  EXPECT_FALSE(service.watchesRawKeys());
  registry.setMenuOpen(false);
  registry.setEnabled(true);

  EXPECT_TRUE(service.isRegistered(chordV));
  EXPECT_TRUE(service.listens());
}

TEST_F(CarbonKeyboardShortcutsTest, DropsAHotKeyThatTheServiceRefusesAfterAMenu) {
  add(shortcutV, "v");
  registry.setMenuOpen(true);
  service.refuse(chordV);
  registry.setMenuOpen(false);
  service.allow(chordV);

  registry.setMenuOpen(true);

  EXPECT_EQ(service.tellRawKey(chordV), EventStatus::eventNotHandledErr);
}

TEST_F(CarbonKeyboardShortcutsTest, AnActionMayEndItsOwnHotKey) {
  registry.registerShortcut(
      shortcutV,
      [this](const Shortcut& fired) {
        registry.unregisterShortcut(fired);
        log.push_back("ended");
      },
      [](const Shortcut&) {});

  service.press(chordV);
  service.press(chordV);

  EXPECT_EQ(log, Log{"ended"});
}

TEST(CarbonKeyboardShortcutsEndTest, LeavesNothingBehind) {
  FakeHotKeyService service;
  {
    CarbonKeyboardShortcuts registry(service);
    registry.registerShortcut(
        shortcutV, [](const Shortcut&) {}, [](const Shortcut&) {});
    registry.setMenuOpen(true);
    registry.setMenuOpen(false);
  }

  EXPECT_EQ(service.count(), 0U);
  EXPECT_FALSE(service.listens());
  EXPECT_FALSE(service.watchesRawKeys());
}

}  // namespace
