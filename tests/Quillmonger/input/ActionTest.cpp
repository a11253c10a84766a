#include "Quillmonger/input/Action.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <set>
#include <vector>

namespace {

using namespace quillmonger;

Action actionFor(std::uint16_t keyCode, std::uint32_t modifierFlags = 0) {
  return actionForEvent({KeyEvent::Type::keyDown, keyCode, modifierFlags});
}

TEST(Action, SelectsARowForCommandAndADigitKeyByItsPosition) {
  EXPECT_EQ(actionFor(21, commandFlag), Action::select) << "the fourth digit key, whatever it types";
  for (const auto keyCode : quickPasteKeyCodes)
    EXPECT_EQ(actionFor(keyCode, commandFlag), Action::select);
}

TEST(Action, LeavesDigitsWithoutCommandToTheSearchField) { EXPECT_EQ(actionFor(18), Action::none); }

TEST(Action, MeansNothingForTheKeysBetweenTheDigits) {
  EXPECT_EQ(actionFor(24, commandFlag), Action::none);
  EXPECT_EQ(actionFor(27, commandFlag), Action::none);
  EXPECT_EQ(actionFor(29, commandFlag), Action::none) << "the zero";
}

TEST(Action, SelectsForReturnWithAnyModifiers) {
  EXPECT_EQ(actionFor(36), Action::select);
  EXPECT_EQ(actionFor(36, commandFlag), Action::select);
}

TEST(Action, MovesForTheArrowsWithAnyModifiers) {
  EXPECT_EQ(actionFor(126, shiftFlag), Action::moveUp);
  EXPECT_EQ(actionFor(125), Action::moveDown);
}

TEST(Action, OpensSettingsForCommandAndCommaAlone) {
  EXPECT_EQ(actionFor(43, commandFlag), Action::openSettings);
  EXPECT_EQ(actionFor(43), Action::none);
}

TEST(Action, DeletesForCommandAndDeleteAlone) {
  EXPECT_EQ(actionFor(51, commandFlag), Action::deleteItem);
  EXPECT_EQ(actionFor(51), Action::none);
}

TEST(Action, DismissesForEscape) { EXPECT_EQ(actionFor(53, shiftFlag), Action::dismiss); }

TEST(Action, HearsTheLeftOptionKeyOnBothEdgesAndTheRightOneNever) {
  EXPECT_EQ(actionForEvent({KeyEvent::Type::flagsChanged, 58, optionFlag}), Action::optionChanged);
  EXPECT_EQ(actionForEvent({KeyEvent::Type::flagsChanged, 58, 0}), Action::optionChanged);
  EXPECT_EQ(actionForEvent({KeyEvent::Type::flagsChanged, 61, optionFlag}), Action::none);
}

TEST(Action, MeansNothingForEveryOtherKeyWhateverTheModifiers) {
  const std::set<std::uint16_t> known{18, 19, 20, 21, 22, 23, 25, 26, 28, 36, 43, 51, 53, 58, 125, 126};
  for (std::uint32_t keyCode = 0; keyCode <= 0xFFFF; ++keyCode) {
    const auto code = static_cast<std::uint16_t>(keyCode);
    if (known.contains(code)) continue;
    ASSERT_EQ(actionFor(code), Action::none) << keyCode;
    ASSERT_EQ(actionFor(code, commandFlag | optionFlag | shiftFlag | controlFlag), Action::none) << keyCode;
  }
}

TEST(Action, AsksForCommandWhateverElseIsHeld) {
  EXPECT_EQ(actionFor(18, commandFlag | optionFlag), Action::select);
  EXPECT_EQ(actionFor(51, commandFlag | shiftFlag), Action::deleteItem);
  for (const std::uint16_t keyCode : std::initializer_list<std::uint16_t>{18, 43, 51})
    EXPECT_EQ(actionFor(keyCode, optionFlag | shiftFlag | controlFlag), Action::none) << keyCode;
}

TEST(Action, StandsInItsDeclaredOrder) {
  const std::array declared{Action::select,       Action::deleteItem, Action::moveDown,      Action::moveUp,
                            Action::openSettings, Action::dismiss,    Action::optionChanged, Action::none};

  for (std::size_t place = 0; place < declared.size(); ++place)
    EXPECT_EQ(static_cast<std::size_t>(declared[place]), place);
}

TEST(Action, IsThatOfTheFirstRuleThatFits) {
  enum class Modifiers { any, command };
  struct Rule {
    std::vector<std::uint16_t> keyCodes;
    Modifiers modifiers;
    Action action;
  };
  const std::vector<Rule> rules{{{18, 19, 20, 21, 23, 22, 26, 28, 25}, Modifiers::command, Action::select},
                                {{36}, Modifiers::any, Action::select},
                                {{126}, Modifiers::any, Action::moveUp},
                                {{125}, Modifiers::any, Action::moveDown},
                                {{43}, Modifiers::command, Action::openSettings},
                                {{53}, Modifiers::any, Action::dismiss},
                                {{58}, Modifiers::any, Action::optionChanged},
                                {{51}, Modifiers::command, Action::deleteItem}};
  const auto expected = [&rules](std::uint16_t keyCode, std::uint32_t flags) {
    for (const Rule& rule : rules) {
      const bool isKey = std::find(rule.keyCodes.begin(), rule.keyCodes.end(), keyCode) != rule.keyCodes.end();
      if (isKey && (rule.modifiers == Modifiers::any || (flags & commandFlag) != 0)) return rule.action;
    }
    return Action::none;
  };

  for (std::uint16_t keyCode = 0; keyCode < 256; ++keyCode) {
    for (std::uint32_t held = 0; held < 16; ++held) {
      const std::uint32_t flags = held * shiftFlag;
      for (const auto type : {KeyEvent::Type::keyDown, KeyEvent::Type::flagsChanged})
        ASSERT_EQ(actionForEvent({type, keyCode, flags}), expected(keyCode, flags)) << keyCode << " with " << held;
    }
  }
}

TEST(Action, MeansNothingForTheKeypadsEnter) { EXPECT_EQ(actionFor(76), Action::none); }

TEST(QuickPasteIndex, IsThePlaceInTheListOfKeyCodesAndElseNone) {
  EXPECT_EQ(quickPasteKeyCodes, (std::array<std::uint16_t, 9>{18, 19, 20, 21, 23, 22, 26, 28, 25}));
  for (std::size_t place = 0; place < quickPasteKeyCodes.size(); ++place)
    EXPECT_EQ(quickPasteIndex(quickPasteKeyCodes[place]), static_cast<int>(place));
  EXPECT_EQ(quickPasteIndex(0), -1);
  EXPECT_EQ(quickPasteIndex(0xFFFF), -1);
}

TEST(QuickPasteIndex, FollowsTheOrderOfTheDigits) {
  const int expected[] = {0, 1, 2, 3, 5, 4, -1, 8, 6, -1, 7};

  for (std::uint16_t keyCode = 18; keyCode <= 28; ++keyCode) {
    EXPECT_EQ(quickPasteIndex(keyCode), expected[keyCode - 18]) << keyCode;
  }
  EXPECT_EQ(quickPasteIndex(17), -1);
  EXPECT_EQ(quickPasteIndex(29), -1);
}

}  // namespace
