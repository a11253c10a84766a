#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Sauce/Key.h"

namespace {

using sauce::Key;
using sauce::keyForCharacter;

// A position that is no key of the list, and so decides nothing.
constexpr std::uint32_t nowhere = 127;

std::string lowered(std::string_view text) {
  std::string result;
  for (const char c : text)
    result += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return result;
}

std::string raised(std::string_view text) {
  std::string result;
  for (const char c : text)
    result += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return result;
}

struct Character {
  Key key;
  const char* text;
};

const std::vector<Character> plainCharacters{
    {Key::one, "1"},        {Key::two, "2"},         {Key::three, "3"},        {Key::four, "4"},
    {Key::five, "5"},       {Key::six, "6"},         {Key::seven, "7"},        {Key::eight, "8"},
    {Key::nine, "9"},       {Key::zero, "0"},        {Key::equal, "="},        {Key::minus, "-"},
    {Key::quote, "'"},      {Key::semicolon, ";"},   {Key::backslash, "\\"},   {Key::comma, ","},
    {Key::slash, "/"},      {Key::period, "."},      {Key::grave, "`"},        {Key::yen, "\u00A5"},
    {Key::underscore, "_"}, {Key::atSign, "@"},      {Key::caret, "^"},        {Key::colon, ":"},
    {Key::space, " "},      {Key::leftBracket, "["}, {Key::rightBracket, "]"}, {Key::section, "\u00A7"}};

const std::vector<Character> keypadCharacters{
    {Key::keypadDecimal, "."}, {Key::keypadMultiply, "*"}, {Key::keypadPlus, "+"},  {Key::keypadDivide, "/"},
    {Key::keypadMinus, "-"},   {Key::keypadEquals, "="},   {Key::keypadZero, "0"},  {Key::keypadOne, "1"},
    {Key::keypadTwo, "2"},     {Key::keypadThree, "3"},    {Key::keypadFour, "4"},  {Key::keypadFive, "5"},
    {Key::keypadSix, "6"},     {Key::keypadSeven, "7"},    {Key::keypadEight, "8"}, {Key::keypadNine, "9"}};

TEST(KeyOfACharacter, IsFoundByTheNameOfEachMemberInEitherCase) {
  for (std::size_t index = 0; index < sauce::keyCount; ++index) {
    const auto key = static_cast<Key>(index);
    const std::string name(sauce::rawValue(key));
    EXPECT_EQ(keyForCharacter(lowered(name), nowhere), key) << name;
    EXPECT_EQ(keyForCharacter(raised(name), nowhere), key) << name;
  }
}

TEST(KeyOfACharacter, IsFoundByEachLetterInEitherCase) {
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const auto key = keyForCharacter(std::string(1, letter), nowhere);
    ASSERT_TRUE(key) << letter;
    EXPECT_EQ(sauce::rawValue(*key), std::string(1, letter));
    EXPECT_EQ(keyForCharacter(raised(std::string(1, letter)), nowhere), key);
  }
}

TEST(KeyOfACharacter, IsFoundByEachPlainCharacterOnTheMainBlock) {
  for (const auto& [key, text] : plainCharacters) {
    EXPECT_EQ(keyForCharacter(text, nowhere), key) << text;
    EXPECT_EQ(keyForCharacter(text, sauce::qwertyKeyCode(key).value_or(nowhere)), key) << text;
  }
}

TEST(KeyOfACharacter, IsAKeypadKeyForItsCharacterFromItsOwnCode) {
  for (const auto& [key, text] : keypadCharacters)
    EXPECT_EQ(keyForCharacter(text, sauce::qwertyKeyCode(key).value()), key) << text;
}

TEST(KeyOfACharacter, IsThePlainKeyForAKeypadCharacterFromAnotherKeypadCode) {
  EXPECT_EQ(keyForCharacter("1", 84), Key::one);
  EXPECT_EQ(keyForCharacter(",", 65), Key::comma);
  EXPECT_EQ(keyForCharacter("-", 67), Key::minus);
}

TEST(KeyOfACharacter, IsNoneForASignOfTheKeypadAloneFromTheMainBlock) {
  EXPECT_EQ(keyForCharacter("*", nowhere), std::nullopt);
  EXPECT_EQ(keyForCharacter("+", 24), std::nullopt);
}

TEST(KeyOfACharacter, IsOneForThe1OfCode18AndKeypadOneForThatOfCode83) {
  EXPECT_EQ(keyForCharacter("1", 18), Key::one);
  EXPECT_EQ(keyForCharacter("1", 83), Key::keypadOne);
}

TEST(KeyOfACharacter, IsAKeypadKeyForItsNameWithADigitFromAnyCode) {
  constexpr std::array keys{Key::keypadZero, Key::keypadOne, Key::keypadTwo,   Key::keypadThree, Key::keypadFour,
                            Key::keypadFive, Key::keypadSix, Key::keypadSeven, Key::keypadEight, Key::keypadNine};

  for (std::size_t digit = 0; digit < keys.size(); ++digit) {
    EXPECT_EQ(keyForCharacter("keypad" + std::to_string(digit), nowhere), keys[digit]);
    EXPECT_EQ(keyForCharacter("Keypad" + std::to_string(digit), 18), keys[digit]);
  }
}

TEST(KeyOfACharacter, IsKeypadCommaForItsNameAlone) {
  EXPECT_EQ(keyForCharacter("keypadComma", 95), Key::keypadComma);
  EXPECT_EQ(keyForCharacter(",", 95), Key::comma);
}

TEST(KeyOfACharacter, IsReturnForTheCarriageReturnAndTheLineFeed) {
  EXPECT_EQ(keyForCharacter("\r", 36), Key::return_);
  EXPECT_EQ(keyForCharacter("\n", 36), Key::return_);
}

TEST(KeyOfACharacter, IsHelpForTheEncircledQuestionMark) { EXPECT_EQ(keyForCharacter("?\u20DD", 114), Key::help); }

TEST(KeyOfACharacter, IsNoneForAnyOtherText) {
  for (const std::string& text :
       {std::string(), std::string("?"), std::string("\u00E9"), std::string("ab"), std::string("keypad"),
        std::string("keypad10"), std::string("keypad."), std::string("\0", 1), std::string("a\0", 2),
        std::string("\xFF\xFE"), std::string(100000, 'a')}) {
    EXPECT_EQ(keyForCharacter(text, nowhere), std::nullopt) << text.substr(0, 16);
    EXPECT_EQ(keyForCharacter(text, 83), std::nullopt) << text.substr(0, 16);
  }
}

}  // namespace
