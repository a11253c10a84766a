#include "KeyboardShortcuts/RecorderCocoa.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Defaults/UserDefaults.h"
#include "tests/support/FakeAlertSheet.h"
#include "tests/support/FakeHotKeyService.h"
#include "tests/support/FakeInputSourceService.h"
#include "tests/support/FakeRecordedEvents.h"
#include "tests/support/FakeRecorderView.h"
#include "tests/support/FakeSymbolicHotKeys.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace keyboardshortcuts;
using Disposition = RecordedEvents::Disposition;
using Type = Event::Type;

constexpr std::uint32_t capsLock = 0x10000;
constexpr std::uint32_t shift = 0x20000;
constexpr std::uint32_t control = 0x40000;
constexpr std::uint32_t option = 0x80000;
constexpr std::uint32_t command = 0x100000;
constexpr std::uint32_t numericPad = 0x200000;
constexpr std::uint32_t function = 0x800000;

constexpr std::uint16_t keyA = 0;
constexpr std::uint16_t keyV = 9;
constexpr std::uint16_t keyComma = 43;
constexpr std::uint16_t keyTab = 48;
constexpr std::uint16_t keyDelete = 51;
constexpr std::uint16_t keyEscape = 53;
constexpr std::uint16_t keyF5 = 96;
constexpr std::uint16_t keyDeleteForward = 117;

const Name show{"show", Shortcut{keyV, 0x300}};
const Name plain{"plain", std::nullopt};
constexpr Shortcut superA{keyA, 0x100};

class Recorder : public testing::Test {
 protected:
  Recorder() {
    inputSources.setTexts(sauce::InputSource("us"), {{keyA, "a"}, {keyV, "v"}, {keyComma, ","}});
    for (const auto& name : {show, plain})
      shortcuts.declare(name);
    make(show);
  }

  RecorderCocoa::Surroundings surroundings() {
    return {shortcuts,
            inputSources,
            events,
            alert,
            notificationCenter,
            runLoop,
            [](std::string_view key) {
              return key == "keyboard_shortcut_used_by_menu_item" ? "used by %1" : std::string(key);
            },
            [this] { return mainMenu; },
            [this] { ++beeps; }};
  }
  void make(const Name& name) {
    recorder = std::make_unique<RecorderCocoa>(name, view, surroundings(),
                                               [this](const auto& shortcut) { changes.push_back(shortcut); });
    view.show(recorder.get());
    recorder->viewDidMoveToWindow();
    runLoop.runPosted();
  }
  void focus() {
    view.takeFocus();
    ASSERT_TRUE(view.hasFocus());
  }
  // Whether nothing was stored, told or shown for a key.
  [[nodiscard]] bool isUnchanged() const {
    return changes.empty() && shortcuts.getShortcut(show) == show.defaultShortcut;
  }

  testsupport::FakeHotKeyService service;
  testsupport::FakeSymbolicHotKeys symbolicHotKeys;
  defaults::UserDefaults store;
  foundation::NotificationCenter notificationCenter;
  KeyboardShortcuts shortcuts{service, symbolicHotKeys, store, notificationCenter};
  testsupport::LatinInputSource inputSources;
  testsupport::FakeRecordedEvents events;
  testsupport::FakeAlertSheet alert;
  testsupport::VirtualRunLoop runLoop;
  testsupport::FakeRecorderView view;
  std::vector<MenuItem> mainMenu;
  int beeps = 0;
  std::vector<std::optional<Shortcut>> changes;
  std::unique_ptr<RecorderCocoa> recorder;
};

using Changes = std::vector<std::optional<Shortcut>>;

// ---- at rest

TEST_F(Recorder, ShowsTheStoredChordWithItsClearButton) {
  EXPECT_EQ(recorder->stringValue().value(), "Shift+Super+V");
  EXPECT_TRUE(recorder->showsCancelButton().value());
  EXPECT_FALSE(recorder->isRecording().value());
}

TEST_F(Recorder, ShowsItsPlaceholderWithoutAChord) {
  make(plain);

  EXPECT_EQ(recorder->stringValue().value(), "");
  EXPECT_EQ(recorder->placeholderString().value(), "record_shortcut");
  EXPECT_FALSE(recorder->showsCancelButton().value());
}

TEST_F(Recorder, ShowsAChordThatIsStoredElsewhere) {
  shortcuts.setShortcut(superA, show);
  EXPECT_EQ(recorder->stringValue().value(), "Super+A");

  shortcuts.setShortcut(std::nullopt, show);
  EXPECT_EQ(recorder->stringValue().value(), "");
  EXPECT_FALSE(recorder->showsCancelButton().value());
  EXPECT_EQ(changes, Changes());
}

TEST_F(Recorder, HeedsNoChordOfAnotherName) {
  int told = 0;
  const auto hold = recorder->stringValue().subscribe([&told](const auto&) { ++told; });

  shortcuts.setShortcut(superA, plain);

  EXPECT_EQ(told, 0);
}

TEST_F(Recorder, ShowsTheChordOfAnotherNameOnceItEditsThat) {
  shortcuts.setShortcut(superA, plain);

  recorder->setShortcutName(plain);

  EXPECT_EQ(recorder->stringValue().value(), "Super+A");
}

TEST_F(Recorder, ShowsTheKeyAsTheNewLayoutHasIt) {
  inputSources.setTexts(sauce::InputSource("us"), {{keyV, "k"}});

  notificationCenter.post("SauceSelectedKeyboardKeyCodesChanged");

  EXPECT_EQ(recorder->stringValue().value(), "Shift+Super+K");
}

// ---- taking and losing the focus

TEST_F(Recorder, DoesNotStartToRecordWhenTheWindowOpensWithItAsTheFirst) {
  RecorderCocoa first(show, view, surroundings(), nullptr);
  view.show(&first);
  first.viewDidMoveToWindow();

  view.takeFocus();
  EXPECT_FALSE(first.isRecording().value());
  EXPECT_FALSE(first.canBecomeKey().value());

  runLoop.runPosted();
  EXPECT_TRUE(first.canBecomeKey().value());
  EXPECT_FALSE(first.isRecording().value());
}

TEST_F(Recorder, RecordsWhileItHasTheFocus) {
  focus();
  EXPECT_TRUE(recorder->isRecording().value());
  EXPECT_EQ(recorder->placeholderString().value(), "press_shortcut");
  EXPECT_EQ(recorder->stringValue().value(), "Shift+Super+V");
  EXPECT_TRUE(recorder->showsCancelButton().value());
  EXPECT_TRUE(events.isWatched());

  view.resignFocus();
  EXPECT_FALSE(recorder->isRecording().value());
  EXPECT_EQ(recorder->placeholderString().value(), "record_shortcut");
  EXPECT_FALSE(events.isWatched());
}

TEST_F(Recorder, LetsNoGlobalChordRunWhileItRecords) {
  int shown = 0;
  const auto hold = shortcuts.onKeyDown(show, [&shown] { ++shown; });

  focus();
  service.press({keyV, 0x300});
  EXPECT_EQ(shown, 0);

  view.resignFocus();
  service.press({keyV, 0x300});
  EXPECT_EQ(shown, 1);
}

TEST_F(Recorder, LetsTheGlobalChordsRunOnceItIsGoneWhileRecording) {
  focus();

  view.show(nullptr);
  recorder.reset();

  EXPECT_FALSE(shortcuts.isPaused());
  EXPECT_FALSE(events.isWatched());
}

TEST_F(Recorder, EndsNoRecordingButItsOwn) {
  RecorderCocoa other(plain, view, surroundings(), nullptr);
  focus();

  other.controlTextDidEndEditing();

  EXPECT_TRUE(shortcuts.isPaused());
}

// ---- the mouse

struct Click {
  const char* name;
  Type type;
  Event::Location location;
  bool endsRecording;
};
class RecorderAtARelease : public Recorder, public testing::WithParamInterface<Click> {};

// The field is at 100, 50 and measures 130 by 24.
TEST_P(RecorderAtARelease, EndsOutsideTheFieldAndPassesItOn) {
  focus();

  const auto disposition = events.send({.type = GetParam().type, .location = GetParam().location});

  EXPECT_EQ(disposition, Disposition::pass);
  EXPECT_NE(view.hasFocus(), GetParam().endsRecording);
  EXPECT_EQ(beeps, 0);
}

INSTANTIATE_TEST_SUITE_P(, RecorderAtARelease,
                         testing::Values(Click{"Inside", Type::leftMouseUp, {165, 62}, false},
                                         Click{"InsideRight", Type::rightMouseUp, {165, 62}, false},
                                         Click{"ThreePointsLeft", Type::leftMouseUp, {97, 62}, false},
                                         Click{"ThreePointsBelow", Type::rightMouseUp, {165, 77}, false},
                                         Click{"ThreePointsRight", Type::leftMouseUp, {233, 62}, false},
                                         Click{"FartherLeft", Type::leftMouseUp, {96.5, 62}, true},
                                         Click{"FartherRight", Type::leftMouseUp, {233.5, 62}, true},
                                         Click{"FartherAbove", Type::rightMouseUp, {165, 46.5}, true},
                                         Click{"FartherBelow", Type::leftMouseUp, {165, 77.5}, true}),
                         [](const auto& row) { return row.param.name; });

TEST_F(Recorder, PassesOnWhatIsNeitherAReleaseOfTheMouseNorAPressOfAKey) {
  focus();

  EXPECT_EQ(events.send({.type = Type::keyUp, .keyCode = keyEscape}), Disposition::pass);
  EXPECT_EQ(events.send({.type = Type::flagsChanged, .keyCode = 56, .modifierFlags = shift}), Disposition::pass);

  EXPECT_TRUE(view.hasFocus());
  EXPECT_EQ(beeps, 0);
}

// ---- keys that are no chord

TEST_F(Recorder, GivesTheFocusUpAtTabAndLetsTheWindowMoveOn) {
  focus();

  EXPECT_EQ(events.press(keyTab), Disposition::pass);

  EXPECT_FALSE(view.hasFocus());
  EXPECT_TRUE(isUnchanged());
}

TEST_F(Recorder, EndsByEscapeWithTheOldChord) {
  focus();

  EXPECT_EQ(events.press(keyEscape), Disposition::swallow);

  EXPECT_FALSE(view.hasFocus());
  EXPECT_TRUE(isUnchanged());
  EXPECT_EQ(recorder->stringValue().value(), "Shift+Super+V");
}

TEST_F(Recorder, EndsByEscapeAlsoWithCapsLockOn) {
  focus();

  EXPECT_EQ(events.press(keyEscape, capsLock), Disposition::swallow);

  EXPECT_FALSE(view.hasFocus());
  EXPECT_TRUE(isUnchanged());
}

TEST_F(Recorder, CountsNeitherNumericPadNorFunctionAsAModifier) {
  focus();

  events.press(keyEscape, numericPad | function);

  EXPECT_FALSE(view.hasFocus());
}

TEST_F(Recorder, JudgesCommandEscapeAsAChord) {
  focus();

  EXPECT_EQ(events.press(keyEscape, command), Disposition::swallow);

  EXPECT_EQ(shortcuts.getShortcut(show), (Shortcut{keyEscape, 0x100}));
  EXPECT_EQ(recorder->stringValue().value(), "Super+Esc");
}

TEST_F(Recorder, JudgesControlTabAsAChord) {
  focus();

  EXPECT_EQ(events.press(keyTab, control), Disposition::swallow);

  EXPECT_EQ(shortcuts.getShortcut(show), (Shortcut{keyTab, 0x1000}));
}

class RecorderAtADelete : public Recorder, public testing::WithParamInterface<std::uint16_t> {};

TEST_P(RecorderAtADelete, ClearsTheChordAndKeepsTheFocus) {
  focus();

  EXPECT_EQ(events.press(GetParam()), Disposition::swallow);

  EXPECT_EQ(shortcuts.getShortcut(show), std::nullopt);
  EXPECT_EQ(changes, Changes{std::nullopt});
  EXPECT_EQ(recorder->stringValue().value(), "");
  EXPECT_FALSE(recorder->showsCancelButton().value());
  EXPECT_TRUE(recorder->isRecording().value());
  EXPECT_EQ(beeps, 0);
}

TEST_P(RecorderAtADelete, BeepsWithShift) {
  focus();

  EXPECT_EQ(events.press(GetParam(), shift), Disposition::swallow);

  EXPECT_EQ(beeps, 1);
  EXPECT_TRUE(isUnchanged());
}

INSTANTIATE_TEST_SUITE_P(, RecorderAtADelete, testing::Values(keyDelete, keyDeleteForward),
                         [](const auto& row) { return row.param == keyDelete ? "Backward" : "Forward"; });

TEST_F(Recorder, BeepsAtShiftAWithoutAChange) {
  focus();

  EXPECT_EQ(events.press(keyA, shift), Disposition::swallow);

  EXPECT_EQ(beeps, 1);
  EXPECT_TRUE(isUnchanged());
  EXPECT_TRUE(recorder->isRecording().value());
}

TEST_F(Recorder, BeepsAtAKeyAlone) {
  focus();

  EXPECT_EQ(events.press(keyA), Disposition::swallow);

  EXPECT_EQ(beeps, 1);
  EXPECT_TRUE(isUnchanged());
}

TEST_F(Recorder, BeepsAtAKeyOfNoKnownPlace) {
  focus();

  EXPECT_EQ(events.send({.keyCode = std::nullopt, .modifierFlags = control}), Disposition::swallow);

  EXPECT_EQ(beeps, 1);
  EXPECT_TRUE(isUnchanged());
}

// ---- chords

TEST_F(Recorder, StoresAValidChordAndGivesTheFocusUp) {
  focus();

  EXPECT_EQ(events.press(keyA, command), Disposition::swallow);

  EXPECT_EQ(shortcuts.getShortcut(show), superA);
  EXPECT_EQ(changes, Changes{superA});
  EXPECT_EQ(recorder->stringValue().value(), "Super+A");
  EXPECT_FALSE(view.hasFocus());
  EXPECT_FALSE(shortcuts.isPaused());
}

TEST_F(Recorder, ShowsTheClearButtonOnceThereIsAChord) {
  make(plain);
  focus();
  EXPECT_FALSE(recorder->showsCancelButton().value());

  events.press(keyA, option);

  EXPECT_EQ(recorder->stringValue().value(), "Alt+A");
  EXPECT_TRUE(recorder->showsCancelButton().value());
}

TEST_F(Recorder, MovesTheHandlerToTheNewChord) {
  int shown = 0;
  const auto hold = shortcuts.onKeyDown(show, [&shown] { ++shown; });
  focus();

  events.press(keyA, command);
  service.press({keyV, 0x300});
  EXPECT_EQ(shown, 0);
  service.press({keyA, 0x100});
  EXPECT_EQ(shown, 1);
}

TEST_F(Recorder, LeavesLockKeysOutOfTheChord) {
  focus();

  events.press(keyA, command | capsLock | numericPad | function);

  EXPECT_EQ(shortcuts.getShortcut(show), superA);
}

class RecorderAtAFunctionKey : public Recorder, public testing::WithParamInterface<std::uint16_t> {};

TEST_P(RecorderAtAFunctionKey, NeedsNoModifier) {
  focus();

  EXPECT_EQ(events.press(GetParam()), Disposition::swallow);

  EXPECT_EQ(beeps, 0);
  EXPECT_EQ(shortcuts.getShortcut(show), (Shortcut{GetParam(), 0}));
}

// F1 to F20.
INSTANTIATE_TEST_SUITE_P(, RecorderAtAFunctionKey,
                         testing::Values(122, 120, 99, 118, 96, 97, 98, 100, 101, 109, 103, 111, 105, 107, 113, 106, 64,
                                         79, 80, 90));

TEST_F(Recorder, TakesAFunctionKeyWithShiftToo) {
  focus();

  events.press(keyF5, shift);

  EXPECT_EQ(shortcuts.getShortcut(show), (Shortcut{keyF5, 0x200}));
  EXPECT_EQ(recorder->stringValue().value(), "Shift+F5");
}

// ---- chords of others

TEST_F(Recorder, TellsWhichMenuItemHasTheChordAndRecordsOn) {
  mainMenu = {{"Settings", ",", command, false, {}}};
  focus();

  EXPECT_EQ(events.press(keyComma, command), Disposition::swallow);
  ASSERT_TRUE(alert.isUp());
  EXPECT_FALSE(view.hasFocus());
  EXPECT_FALSE(shortcuts.isPaused());
  EXPECT_EQ(alert.shown().front(), (foundation::AlertSheet::Content{"used by Settings", "", {{"confirm_string"}}}));

  alert.answer(0);
  EXPECT_TRUE(recorder->isRecording().value());
  EXPECT_TRUE(isUnchanged());
}

TEST_F(Recorder, TellsThatTheSystemHasTheChordAndRecordsOn) {
  symbolicHotKeys.entries = {{{true, keyA, 0x100}}};
  focus();

  EXPECT_EQ(events.press(keyA, command), Disposition::swallow);
  ASSERT_TRUE(alert.isUp());
  EXPECT_FALSE(view.hasFocus());
  EXPECT_EQ(alert.shown().front(),
            (foundation::AlertSheet::Content{
                "keyboard_shortcut_used_by_system", "keyboard_shortcuts_can_be_changed", {{"confirm_string"}}}));

  alert.answer(0);
  EXPECT_TRUE(recorder->isRecording().value());
  EXPECT_TRUE(isUnchanged());
}

TEST_F(Recorder, CountsAChordThatAnotherProgramHoldsAsTheSystems) {
  service.refuse({keyA, 0x100});
  focus();

  events.press(keyA, command);

  ASSERT_TRUE(alert.isUp());
  EXPECT_EQ(alert.shown().front().message, "keyboard_shortcut_used_by_system");
  EXPECT_TRUE(isUnchanged());
}

TEST_F(Recorder, AsksTheMenuBeforeTheSystem) {
  mainMenu = {{"Settings", ",", command, false, {}}};
  symbolicHotKeys.entries = {{{true, keyComma, 0x100}}};
  focus();

  events.press(keyComma, command);

  EXPECT_EQ(alert.shown().front().message, "used by Settings");
}

TEST_F(Recorder, AsksForModifiersBeforeTheMenu) {
  mainMenu = {{"Comma", ",", 0, false, {}}};
  focus();

  events.press(keyComma);

  EXPECT_EQ(beeps, 1);
  EXPECT_FALSE(alert.isUp());
}

TEST_F(Recorder, TakesTheChordThatTheNameAlreadyHas) {
  const auto hold = shortcuts.onKeyDown(show, [] {});
  focus();

  events.press(keyV, command | shift);

  EXPECT_FALSE(alert.isUp());
  EXPECT_EQ(shortcuts.getShortcut(show), show.defaultShortcut);
  EXPECT_FALSE(view.hasFocus());
}

TEST_F(Recorder, MayBeGoneWhenItsAlertIsAnswered) {
  symbolicHotKeys.entries = {{{true, keyA, 0x100}}};
  focus();
  events.press(keyA, command);

  view.show(nullptr);
  recorder.reset();
  alert.answer(0);

  EXPECT_FALSE(view.hasFocus());
  EXPECT_FALSE(shortcuts.isPaused());
}

// ---- the clear button

TEST_F(Recorder, LeavesTheFocusWhereItIsWhenItIsClearedAtRest) {
  recorder->performClick();

  EXPECT_EQ(shortcuts.getShortcut(show), std::nullopt);
  EXPECT_EQ(store.objectForKey("KeyboardShortcuts_show"), defaults::Object(false));
  EXPECT_EQ(changes, Changes{std::nullopt});
  EXPECT_FALSE(recorder->showsCancelButton().value());
  EXPECT_FALSE(recorder->isRecording().value());
}

TEST_F(Recorder, TellsNobodyWhenNobodyAsked) {
  RecorderCocoa silent(show, view, surroundings(), nullptr);

  silent.performClick();

  EXPECT_EQ(shortcuts.getShortcut(show), std::nullopt);
}

}  // namespace
