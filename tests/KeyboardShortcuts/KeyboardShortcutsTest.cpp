#include "KeyboardShortcuts/KeyboardShortcuts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Defaults/UserDefaults.h"
#include "tests/support/FakeHotKeyService.h"
#include "tests/support/FakeSymbolicHotKeys.h"

namespace {

using namespace keyboardshortcuts;
using testsupport::FakeHotKeyService;
using Log = std::vector<std::string>;

constexpr FakeHotKeyService::Chord chordV{9, 0x300};
constexpr FakeHotKeyService::Chord chordX{7, 0x300};
const Name show{"show", Shortcut{9, 0x300}};
const Name other{"other", Shortcut{7, 0x300}};
const Name plain{"plain", std::nullopt};

class KeyboardShortcutsTest : public testing::Test {
 protected:
  KeyboardShortcutsTest() {
    for (const auto& name : {show, other, plain})
      shortcuts.declare(name);
  }
  void listen(const Name& name) {
    holds.push_back(shortcuts.onKeyDown(name, [this, name] { log.push_back(name.rawValue + " down"); }));
    holds.push_back(shortcuts.onKeyUp(name, [this, name] { log.push_back(name.rawValue + " up"); }));
  }

  FakeHotKeyService service;
  testsupport::FakeSymbolicHotKeys symbolicHotKeys;
  defaults::UserDefaults store;
  foundation::NotificationCenter notificationCenter;
  KeyboardShortcuts shortcuts{service, symbolicHotKeys, store, notificationCenter};
  Log log;
  std::vector<foundation::Subscription> holds;
};

TEST_F(KeyboardShortcutsTest, StoresADefaultThatIsNotInTheStore) {
  EXPECT_EQ(store.objectForKey("KeyboardShortcuts_show"),
            defaults::Object(std::string(R"({"carbonKeyCode":9,"carbonModifiers":768})")));
  EXPECT_EQ(store.objectForKey("KeyboardShortcuts_plain"), std::nullopt);
}

TEST_F(KeyboardShortcutsTest, KeepsAChordThatTheUserChoseWhenItsNameIsDeclaredAgain) {
  shortcuts.setShortcut(Shortcut{1, 0x100}, show);

  shortcuts.declare(show);

  EXPECT_EQ(shortcuts.getShortcut(show), (Shortcut{1, 0x100}));
}

TEST_F(KeyboardShortcutsTest, KeepsAClearedNameClearedAfterARestart) {
  shortcuts.setShortcut(std::nullopt, show);
  EXPECT_EQ(store.objectForKey("KeyboardShortcuts_show"), defaults::Object(false));

  FakeHotKeyService nextService;
  KeyboardShortcuts next(nextService, symbolicHotKeys, store, notificationCenter);
  next.declare(show);

  EXPECT_EQ(next.getShortcut(show), std::nullopt);
}

TEST_F(KeyboardShortcutsTest, RemovesTheEntryOfAClearedNameWithoutADefault) {
  shortcuts.setShortcut(Shortcut{1, 0x100}, plain);

  shortcuts.setShortcut(std::nullopt, plain);

  EXPECT_EQ(store.objectForKey("KeyboardShortcuts_plain"), std::nullopt);
}

TEST_F(KeyboardShortcutsTest, ReadsWhatDoesNotDecodeAsNoChord) {
  store.setObject("KeyboardShortcuts_show", std::string("{"));

  EXPECT_EQ(shortcuts.getShortcut(show), std::nullopt);
}

TEST_F(KeyboardShortcutsTest, RunsTheHandlersOfPressAndRelease) {
  listen(show);

  service.press(chordV);
  service.release(chordV);

  EXPECT_EQ(log, (Log{"show down", "show up"}));
}

TEST_F(KeyboardShortcutsTest, RunsNoHandlerWhoseHoldIsGone) {
  listen(show);

  holds.clear();
  service.press(chordV);

  EXPECT_EQ(log, Log{});
}

TEST_F(KeyboardShortcutsTest, LeavesNamesWithoutHandlersOrChordsOutOfTheService) {
  EXPECT_EQ(service.count(), 0U);

  listen(plain);
  EXPECT_EQ(service.count(), 0U);
  shortcuts.setShortcut(Shortcut{9, 0x300}, plain);

  EXPECT_TRUE(service.isRegistered(chordV));
}

TEST_F(KeyboardShortcutsTest, ReplacesTheChordWhenANewOneIsStored) {
  listen(show);

  shortcuts.setShortcut(Shortcut{7, 0x300}, show);

  EXPECT_FALSE(service.isRegistered(chordV));
  service.press(chordX);
  EXPECT_EQ(log, Log{"show down"});
}

TEST_F(KeyboardShortcutsTest, RunsTheHandlersOfBothNamesOfOneChordOnce) {
  shortcuts.setShortcut(Shortcut{9, 0x300}, other);
  listen(show);
  listen(other);

  service.press(chordV);

  EXPECT_EQ(log, (Log{"other down", "show down"}));
}

TEST_F(KeyboardShortcutsTest, TellsTheNameOfEachChangedChord) {
  const auto hold = notificationCenter.observe("KeyboardShortcuts_shortcutByNameDidChange",
                                               [this](const auto& told) { log.push_back(told.userInfo.at("name")); });

  shortcuts.setShortcut(Shortcut{1, 0x100}, show);
  shortcuts.setShortcut(std::nullopt, show);
  shortcuts.setShortcut(std::nullopt, show);
  shortcuts.reset({show});

  EXPECT_EQ(log, (Log{"show", "show", "show"})) << "clearing twice is one change";
}

TEST_F(KeyboardShortcutsTest, PutsResetNamesBackOnTheirDefaults) {
  listen(show);
  shortcuts.setShortcut(std::nullopt, show);

  shortcuts.reset({show});

  EXPECT_EQ(shortcuts.getShortcut(show), show.defaultShortcut);
  EXPECT_TRUE(service.isRegistered(chordV));
}

TEST_F(KeyboardShortcutsTest, TakesDisabledNamesFromTheServiceUntilTheyAreEnabled) {
  listen(show);
  listen(other);

  shortcuts.disable({show});
  EXPECT_FALSE(service.isRegistered(chordV));
  EXPECT_TRUE(service.isRegistered(chordX));
  shortcuts.enable({show});

  EXPECT_TRUE(service.isRegistered(chordV));
}

TEST_F(KeyboardShortcutsTest, TakesAllChordsFromTheServiceWhileItIsNotEnabled) {
  listen(show);

  shortcuts.setEnabled(false);
  EXPECT_EQ(service.count(), 0U);
  shortcuts.setEnabled(true);

  EXPECT_TRUE(service.isRegistered(chordV));
}

TEST_F(KeyboardShortcutsTest, KeepsTheChordsAndRunsNoHandlerWhileItIsPaused) {
  listen(show);

  shortcuts.setPaused(true);
  service.press(chordV);
  EXPECT_EQ(log, Log{});
  EXPECT_TRUE(service.isRegistered(chordV));
  shortcuts.setPaused(false);
  service.press(chordV);

  EXPECT_EQ(log, Log{"show down"});
}

TEST_F(KeyboardShortcutsTest, LeavesARefusedChordDead) {
  service.refuse(chordV);

  listen(show);

  EXPECT_EQ(service.count(), 0U);
}

TEST_F(KeyboardShortcutsTest, RegistersNoChordThatDoesNotFitTheService) {
  shortcuts.setShortcut(Shortcut{-1, 0x100}, plain);
  listen(plain);
  shortcuts.setShortcut(Shortcut{1LL << 32, 0x100}, plain);

  EXPECT_EQ(service.count(), 0U);
}

TEST_F(KeyboardShortcutsTest, AHotKeyFiresThroughTheRawPathWhileAMenuIsOpenAndThroughTheNormalOneAfterwards) {
  listen(show);

  notificationCenter.post(KeyboardShortcuts::menuDidBeginTracking);
  EXPECT_EQ(service.count(), 0U);
  EXPECT_FALSE(service.listens());
  service.press(chordV);
  EXPECT_EQ(log, Log{"show down"});

  notificationCenter.post(KeyboardShortcuts::menuDidEndTracking);
  EXPECT_FALSE(service.watchesRawKeys());
  EXPECT_TRUE(service.isRegistered(chordV));
  service.press(chordV);
  EXPECT_EQ(log, (Log{"show down", "show down"}));
}

TEST_F(KeyboardShortcutsTest, GivesTheChordsToTheServiceAnewWhenTheKeysOfTheLayoutChange) {
  listen(show);
  const auto before = service.registrations();

  notificationCenter.post("SauceSelectedKeyboardKeyCodesChanged");

  EXPECT_TRUE(service.isRegistered(chordV));
  EXPECT_EQ(service.registrations(), before + 1);
  EXPECT_EQ(service.count(), 1U);
}

TEST_F(KeyboardShortcutsTest, TellsTheReleaseOfAChordWhenTheKeysOfTheLayoutChangeWhileItIsHeld) {
  listen(show);
  const auto heldHotKey = service.hotKeys().begin()->first;

  notificationCenter.post("SauceSelectedKeyboardKeyCodesChanged");

  EXPECT_EQ(service.tell(heldHotKey), keyboardshortcuts::EventStatus::noErr);
  EXPECT_EQ(log, (Log{"show down"}));
}

TEST_F(KeyboardShortcutsTest, TriesARefusedChordAgainWhenTheKeysOfTheLayoutChange) {
  service.refuse(chordV);
  listen(show);
  service.allow(chordV);

  notificationCenter.post("SauceSelectedKeyboardKeyCodesChanged");

  EXPECT_TRUE(service.isRegistered(chordV));
}

TEST_F(KeyboardShortcutsTest, KeepsTheChordOfTheOtherNameWhenOneOfTwoChangesIt) {
  shortcuts.setShortcut(Shortcut{9, 0x300}, other);
  listen(show);
  listen(other);
  ASSERT_EQ(service.count(chordV), 2U);

  shortcuts.setShortcut(Shortcut{7, 0x300}, other);

  EXPECT_EQ(service.count(chordV), 1U);
  service.press(chordV);
  EXPECT_EQ(log, Log{"show down"});
}

TEST_F(KeyboardShortcutsTest, RunsNoHandlerOfADisabledNameWhoseChordAnotherNameHas) {
  shortcuts.setShortcut(Shortcut{9, 0x300}, other);
  listen(show);
  listen(other);

  shortcuts.disable({other});
  service.press(chordV);

  EXPECT_EQ(log, Log{"show down"});
}

TEST_F(KeyboardShortcutsTest, SaysThatAChordOfTheDesktopIsTaken) {
  symbolicHotKeys.entries->push_back({true, 4, 0x100});
  symbolicHotKeys.entries->push_back({false, 5, 0x100});

  EXPECT_TRUE(shortcuts.isTakenBySystem({4, 0x100}));
  EXPECT_FALSE(shortcuts.isTakenBySystem({5, 0x100}));
}

TEST_F(KeyboardShortcutsTest, SaysThatAChordOfAnotherProgramIsTaken) {
  service.refuse({4, 0x100});

  EXPECT_TRUE(shortcuts.isTakenBySystem({4, 0x100}));
  EXPECT_FALSE(shortcuts.isTakenBySystem({4, 0x300}));
}

TEST_F(KeyboardShortcutsTest, SaysThatAChordOfItsOwnIsNotTaken) {
  listen(show);
  service.refuse(chordV);

  EXPECT_FALSE(shortcuts.isTakenBySystem(*show.defaultShortcut));
}

TEST_F(KeyboardShortcutsTest, SaysThatAChordThatNoServiceCouldHoldIsNotTaken) {
  service.refuse({0xFFFFFFFF, 0x100});

  EXPECT_FALSE(shortcuts.isTakenBySystem({-1, 0x100}));
  EXPECT_FALSE(shortcuts.isTakenBySystem({4, std::int64_t{1} << 40}));
}

}  // namespace
