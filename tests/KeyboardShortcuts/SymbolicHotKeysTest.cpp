#include "KeyboardShortcuts/SymbolicHotKeys.h"

#include <gtest/gtest.h>

namespace {

using namespace keyboardshortcuts;

class TheSystems final : public SymbolicHotKeys {
 public:
  [[nodiscard]] std::optional<std::vector<Entry>> copySymbolicHotKeys() const override { return entries; }
  std::optional<std::vector<Entry>> entries = std::vector<Entry>();
};

constexpr Shortcut chord{9, 0x300};

TEST(SymbolicHotKeys, TakeTheChordOfAnEntryThatIsEnabled) {
  TheSystems system;
  system.entries->push_back({true, 7, 0x300});
  system.entries->push_back({true, 9, 0x300});

  EXPECT_TRUE(isTakenBySystem(chord, system));
}

TEST(SymbolicHotKeys, DoNotTakeTheChordOfAnEntryThatIsDisabled) {
  TheSystems system;
  system.entries->push_back({false, 9, 0x300});

  EXPECT_FALSE(isTakenBySystem(chord, system));
}

TEST(SymbolicHotKeys, CompareTheFourModifiersAlone) {
  TheSystems system;
  system.entries->push_back({true, 9, 0x300 | 0x400});
  EXPECT_TRUE(isTakenBySystem(chord, system));

  system.entries->front().modifiers = 0x100;
  EXPECT_FALSE(isTakenBySystem(chord, system));
}

TEST(SymbolicHotKeys, TakeNothingByAnEntryThatCannotBeRead) {
  TheSystems system;
  system.entries->push_back({true, std::nullopt, 0x300});
  system.entries->push_back({true, 9, std::nullopt});

  EXPECT_FALSE(isTakenBySystem(chord, system));
}

TEST(SymbolicHotKeys, TakeNothingWhenTheyCannotBeHad) {
  TheSystems system;
  system.entries.reset();

  EXPECT_FALSE(isTakenBySystem(chord, system));
}

}  // namespace
