#include "Quillmonger/preview/FadingText.h"

#include <gtest/gtest.h>

#include <string>

#include "Quillmonger/preview/PreviewViewModel.h"

namespace {

using quillmonger::fadingText;
constexpr std::size_t limit = quillmonger::PreviewViewModel::characterLimit;

std::string repeated(std::string_view character, std::size_t count) {
  std::string text;
  for (std::size_t number = 0; number < count; ++number)
    text += character;
  return text;
}

TEST(FadingText, ShowsATextOfExactlyTwentyFiveThousandCharactersInFull) {
  EXPECT_EQ(fadingText(repeated("x", limit), limit), std::nullopt);
}

TEST(FadingText, ShowsAllCharactersOfATextThatHasOneMore) {
  const std::string text = repeated("x", limit + 1);

  EXPECT_EQ(fadingText(text, limit), text);
}

TEST(FadingText, ShowsTwentyFiveThousandAndOneCharactersOfThirtyThousand) {
  const std::string text = repeated("x", 30'000);

  EXPECT_EQ(fadingText(text, limit), text.substr(0, 25'001));
}

TEST(FadingText, IsNotCutWithoutCharacters) {
  EXPECT_EQ(fadingText("", 0), std::nullopt);
  EXPECT_EQ(fadingText("", limit), std::nullopt);
}

class FadingTextOf : public testing::TestWithParam<std::string> {};

TEST_P(FadingTextOf, CountsCharactersAsAUserPerceivesThem) {
  const std::string& character = GetParam();

  EXPECT_EQ(fadingText(repeated(character, 3), 3), std::nullopt);
  EXPECT_EQ(fadingText(repeated(character, 4), 3), repeated(character, 4));
  EXPECT_EQ(fadingText(repeated(character, 9), 3), repeated(character, 4));
  EXPECT_EQ(fadingText(repeated(character, 1000), 99), repeated(character, 100));
}

INSTANTIATE_TEST_SUITE_P(Characters, FadingTextOf,
                         testing::Values("x", "é", "e\u0301", "漢", "👩‍👩‍👧‍👦", "🇯🇵", "\r\n",
                                         "a\u0301\u0302\u0303\u0304", "각"));

TEST(FadingText, KeepsTheMarksOfTheLastCharacter) { EXPECT_EQ(fadingText("abc\u0301def", 2), "abc\u0301"); }

TEST(FadingText, TakesEndlessMarksForOneCharacter) {
  const std::string text = "a" + repeated("\u0301", 100'000);

  EXPECT_EQ(fadingText(text, 1), std::nullopt);
  EXPECT_EQ(fadingText(text + "bc", 0), text);
}

TEST(FadingText, LooksNoFurtherThanTheLimit) {
  // What comes after the limit isn't valid, and would be counted as further characters.
  EXPECT_EQ(fadingText("abcd\xFF\xFE", 2), "abc");
}

}  // namespace
