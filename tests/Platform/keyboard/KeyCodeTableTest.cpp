#include "Platform/keyboard/KeyCodeTable.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>

#include "Sauce/Key.h"

namespace {

using platform::evdevKey;
using platform::virtualKeyCode;

struct Position {
  const char* name;
  std::uint32_t evdev;
  std::uint16_t virtualCode;
};

class KeyCodeTable : public testing::TestWithParam<Position> {};

TEST_P(KeyCodeTable, NamesThePositionInBothDirections) {
  EXPECT_EQ(virtualKeyCode(GetParam().evdev), GetParam().virtualCode);
  EXPECT_EQ(evdevKey(GetParam().virtualCode), GetParam().evdev);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, KeyCodeTable,
    testing::Values(Position{"Escape", 1, 53}, Position{"Digit1", 2, 18}, Position{"Digit5", 6, 23},
                    Position{"Digit6", 7, 22}, Position{"Digit7", 8, 26}, Position{"Digit8", 9, 28},
                    Position{"Digit9", 10, 25}, Position{"Backspace", 14, 51}, Position{"Return", 28, 36},
                    Position{"V", 47, 9}, Position{"P", 25, 35}, Position{"Comma", 51, 43}, Position{"LeftAlt", 56, 58},
                    Position{"RightAlt", 100, 61}, Position{"KeypadEnter", 96, 76}, Position{"Up", 103, 126},
                    Position{"Down", 108, 125}, Position{"LeftSuper", 125, 55}, Position{"Section", 86, 10},
                    Position{"Yen", 124, 93}, Position{"Underscore", 89, 94}, Position{"KeypadComma", 121, 95},
                    Position{"Eisu", 123, 102}, Position{"Kana", 122, 104}, Position{"KeypadClear", 69, 71},
                    Position{"KeypadEquals", 117, 81}, Position{"Help", 110, 114}, Position{"PageUp", 104, 116},
                    Position{"F13", 183, 105}, Position{"F17", 187, 64}, Position{"F20", 190, 90}),
    [](const testing::TestParamInfo<Position>& position) { return std::string(position.param.name); });

TEST(KeyCodeTable, GivesNoTwoKeysTheSameCode) {
  std::set<std::uint16_t> seen;

  for (std::uint32_t key = 0; key < 256; ++key) {
    const auto code = virtualKeyCode(key);
    EXPECT_TRUE(!code || seen.insert(*code).second) << key;
  }
}

TEST(KeyCodeTable, KnowsThePositionOfEveryKeyThatHasOne) {
  for (std::size_t index = 0; index < sauce::keyCount; ++index) {
    const auto key = static_cast<sauce::Key>(index);
    const auto code = sauce::qwertyKeyCode(key);
    if (code) {
      EXPECT_TRUE(evdevKey(*code)) << sauce::rawValue(key);
    }
  }
}

TEST(KeyCodeTable, KnowsNothingOfOtherKeys) {
  EXPECT_FALSE(virtualKeyCode(0));
  EXPECT_FALSE(virtualKeyCode(0xFFFFFFFF));
  EXPECT_FALSE(evdevKey(66));
  EXPECT_FALSE(evdevKey(0xFFFFFFFF));
}

}  // namespace
