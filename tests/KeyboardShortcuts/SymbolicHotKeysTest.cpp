#include "KeyboardShortcuts/SymbolicHotKeys.h"

#include <gtest/gtest.h>

#include "tests/support/FakeSymbolicHotKeys.h"

namespace {

using namespace keyboardshortcuts;

constexpr Shortcut chord{9, 0x300};

TEST(SymbolicHotKeys, TakeTheChordOfAnEntryThatIsEnabled) {
  testsupport::FakeSymbolicHotKeys system;
  system.entries->push_back({true, 7, 0x300});
  system.entries->push_back({true, 9, 0x300});

  EXPECT_TRUE(isTakenBySystem(chord, system));
}

TEST(SymbolicHotKeys, DoNotTakeTheChordOfAnEntryThatIsDisabled) {
  testsupport::FakeSymbolicHotKeys system;
  system.entries->push_back({false, 9, 0x300});

  EXPECT_FALSE(isTakenBySystem(chord, system));
}

TEST(SymbolicHotKeys, CompareTheFourModifiersAlone) {
  testsupport::FakeSymbolicHotKeys system;
  system.entries->push_back({true, 9, 0x300 | 0x400});
  EXPECT_TRUE(isTakenBySystem(chord, system));

  system.entries->front().modifiers = 0x100;
  EXPECT_FALSE(isTakenBySystem(chord, system));
}

TEST(SymbolicHotKeys, TakeNothingByAnEntryThatCannotBeRead) {
  testsupport::FakeSymbolicHotKeys system;
  system.entries->push_back({true, std::nullopt, 0x300});
  system.entries->push_back({true, 9, std::nullopt});

  EXPECT_FALSE(isTakenBySystem(chord, system));
}

TEST(SymbolicHotKeys, TakeNothingWhenTheyCannotBeHad) {
  testsupport::FakeSymbolicHotKeys system;
  system.entries.reset();

  EXPECT_FALSE(isTakenBySystem(chord, system));
}

}  // namespace
