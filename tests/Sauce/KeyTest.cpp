#include "Sauce/Key.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace {

using sauce::Key;

struct Row {
  Key key;
  const char* rawValue;
  std::optional<sauce::KeyCode> code;
};

const std::vector<Row>& rows() {
  static const std::vector<Row> table{{Key::a, "a", 0},
                                      {Key::s, "s", 1},
                                      {Key::d, "d", 2},
                                      {Key::f, "f", 3},
                                      {Key::h, "h", 4},
                                      {Key::g, "g", 5},
                                      {Key::z, "z", 6},
                                      {Key::x, "x", 7},
                                      {Key::c, "c", 8},
                                      {Key::v, "v", 9},
                                      {Key::b, "b", 11},
                                      {Key::q, "q", 12},
                                      {Key::w, "w", 13},
                                      {Key::e, "e", 14},
                                      {Key::r, "r", 15},
                                      {Key::y, "y", 16},
                                      {Key::t, "t", 17},
                                      {Key::one, "one", 18},
                                      {Key::two, "two", 19},
                                      {Key::three, "three", 20},
                                      {Key::four, "four", 21},
                                      {Key::six, "six", 22},
                                      {Key::five, "five", 23},
                                      {Key::equal, "equal", 24},
                                      {Key::nine, "nine", 25},
                                      {Key::seven, "seven", 26},
                                      {Key::minus, "minus", 27},
                                      {Key::eight, "eight", 28},
                                      {Key::zero, "zero", 29},
                                      {Key::rightBracket, "rightBracket", 30},
                                      {Key::o, "o", 31},
                                      {Key::u, "u", 32},
                                      {Key::leftBracket, "leftBracket", 33},
                                      {Key::i, "i", 34},
                                      {Key::p, "p", 35},
                                      {Key::l, "l", 37},
                                      {Key::j, "j", 38},
                                      {Key::quote, "quote", 39},
                                      {Key::k, "k", 40},
                                      {Key::semicolon, "semicolon", 41},
                                      {Key::backslash, "backslash", 42},
                                      {Key::comma, "comma", 43},
                                      {Key::slash, "slash", 44},
                                      {Key::n, "n", 45},
                                      {Key::m, "m", 46},
                                      {Key::period, "period", 47},
                                      {Key::grave, "grave", 50},
                                      {Key::keypadDecimal, "keypadDecimal", 65},
                                      {Key::keypadMultiply, "keypadMultiply", 67},
                                      {Key::keypadPlus, "keypadPlus", 69},
                                      {Key::keypadClear, "keypadClear", 71},
                                      {Key::keypadDivide, "keypadDivide", 75},
                                      {Key::keypadEnter, "keypadEnter", 76},
                                      {Key::keypadMinus, "keypadMinus", 78},
                                      {Key::keypadEquals, "keypadEquals", 81},
                                      {Key::keypadZero, "keypadZero", 82},
                                      {Key::keypadOne, "keypadOne", 83},
                                      {Key::keypadTwo, "keypadTwo", 84},
                                      {Key::keypadThree, "keypadThree", 85},
                                      {Key::keypadFour, "keypadFour", 86},
                                      {Key::keypadFive, "keypadFive", 87},
                                      {Key::keypadSix, "keypadSix", 88},
                                      {Key::keypadSeven, "keypadSeven", 89},
                                      {Key::keypadEight, "keypadEight", 91},
                                      {Key::keypadNine, "keypadNine", 92},
                                      {Key::return_, "return", 36},
                                      {Key::tab, "tab", 48},
                                      {Key::space, "space", 49},
                                      {Key::delete_, "delete", 51},
                                      {Key::escape, "escape", 53},
                                      {Key::f17, "f17", 64},
                                      {Key::f18, "f18", 79},
                                      {Key::f19, "f19", 80},
                                      {Key::f20, "f20", 90},
                                      {Key::f5, "f5", 96},
                                      {Key::f6, "f6", 97},
                                      {Key::f7, "f7", 98},
                                      {Key::f3, "f3", 99},
                                      {Key::f8, "f8", 100},
                                      {Key::f9, "f9", 101},
                                      {Key::f11, "f11", 103},
                                      {Key::f13, "f13", 105},
                                      {Key::f16, "f16", 106},
                                      {Key::f14, "f14", 107},
                                      {Key::f10, "f10", 109},
                                      {Key::f12, "f12", 111},
                                      {Key::f15, "f15", 113},
                                      {Key::help, "help", 114},
                                      {Key::home, "home", 115},
                                      {Key::pageUp, "pageUp", 116},
                                      {Key::forwardDelete, "forwardDelete", 117},
                                      {Key::f4, "f4", 118},
                                      {Key::end, "end", 119},
                                      {Key::f2, "f2", 120},
                                      {Key::pageDown, "pageDown", 121},
                                      {Key::f1, "f1", 122},
                                      {Key::leftArrow, "leftArrow", 123},
                                      {Key::rightArrow, "rightArrow", 124},
                                      {Key::downArrow, "downArrow", 125},
                                      {Key::upArrow, "upArrow", 126},
                                      {Key::yen, "yen", 93},
                                      {Key::underscore, "underscore", 94},
                                      {Key::keypadComma, "keypadComma", 95},
                                      {Key::eisu, "eisu", 102},
                                      {Key::kana, "kana", 104},
                                      {Key::atSign, "atSign", std::nullopt},
                                      {Key::caret, "caret", std::nullopt},
                                      {Key::colon, "colon", std::nullopt},
                                      {Key::section, "section", 10}};
  return table;
}

TEST(Key, HasItsMembersInTheirOrder) {
  ASSERT_EQ(rows().size(), sauce::keyCount);

  for (std::size_t index = 0; index < rows().size(); ++index)
    EXPECT_EQ(static_cast<std::size_t>(rows()[index].key), index) << rows()[index].rawValue;
}

TEST(Key, HasItsNameAsRawValue) {
  for (const Row& row : rows())
    EXPECT_EQ(sauce::rawValue(row.key), row.rawValue);
}

TEST(Key, HasItsCodeOnTheAnsiLayout) {
  for (const Row& row : rows())
    EXPECT_EQ(sauce::qwertyKeyCode(row.key), row.code) << row.rawValue;
}

TEST(Key, IsFoundByItsCode) {
  for (const Row& row : rows()) {
    if (row.code) {
      EXPECT_EQ(sauce::keyWithQWERTYKeyCode(*row.code), row.key) << row.rawValue;
    }
  }
}

TEST(Key, IsAbsentForACodeThatIsNotInTheList) {
  for (const std::uint32_t code : {52U, 54U, 63U, 66U, 68U, 70U, 77U, 108U, 110U, 112U})
    EXPECT_EQ(sauce::keyWithQWERTYKeyCode(code), std::nullopt) << code;
}

TEST(Key, IsAbsentForACodeAbove126) {
  for (const std::uint32_t code : {127U, 128U, 256U, 65536U, 0xFFFFFFFFU})
    EXPECT_EQ(sauce::keyWithQWERTYKeyCode(code), std::nullopt) << code;
}

}  // namespace
