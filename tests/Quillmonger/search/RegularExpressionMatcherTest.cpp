#include "Quillmonger/search/RegularExpressionMatcher.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/InLocale.h"

namespace {

using quillmonger::CharacterRange;
using quillmonger::RegularExpressionMatcher;
using quillmonger::SearchOptions;

std::optional<CharacterRange> find(std::string_view expression, std::string_view text, SearchOptions options = {}) {
  return RegularExpressionMatcher(expression, options).find(text);
}

std::optional<CharacterRange> range(std::size_t lower, std::size_t upper) { return CharacterRange{lower, upper}; }

TEST(RegularExpressionMatcher, FindsWhatTheExpressionMatches) {
  EXPECT_EQ(find("a.c", "xabc"), range(1, 3));
  EXPECT_EQ(find("^a", "ba"), std::nullopt);
  EXPECT_EQ(find("[0-9]+", "no 42!"), range(3, 4));
}

TEST(RegularExpressionMatcher, HeedsCaseOnlyWhenAsked) {
  EXPECT_EQ(find("ABC", "abc"), range(0, 2));
  EXPECT_EQ(find("ABC", "abc", {.isCaseSensitive = true}), std::nullopt);
}

TEST(RegularExpressionMatcher, CountsCharactersAsTheUserSeesThem) {
  EXPECT_EQ(find("b+", "\u00E9e\u0301bb"), range(2, 3));
}

TEST(RegularExpressionMatcher, IsOneCharacterWideForAnEmptyMatch) { EXPECT_EQ(find("a*", "bcd"), range(0, 0)); }

TEST(RegularExpressionMatcher, FindsNothingInAnEmptyText) {
  for (const auto* const expression : {"a*", "^$", ".*", "()"})
    EXPECT_EQ(find(expression, ""), std::nullopt) << expression;
}

TEST(RegularExpressionMatcher, FindsTheSameInEveryLocale) {
  for (const auto* const name : {"en_US", "de_DE", "tr_TR", "el_GR", "ar_EG", "ja_JP"}) {
    const testsupport::InLocale locale(name);
    EXPECT_EQ(find("a.c", "xABCy"), range(1, 3)) << name;
    EXPECT_EQ(find("i+", "xIIy"), range(1, 2)) << name;
    EXPECT_EQ(find("i+", "xIIy", {.isCaseSensitive = true}), std::nullopt) << name;
    EXPECT_EQ(find("(", "("), std::nullopt) << name;
  }
}

TEST(RegularExpressionMatcher, FindsNothingForAnInvalidExpression) {
  EXPECT_EQ(find("(", "("), std::nullopt);
  EXPECT_EQ(find("[", "["), std::nullopt);
  EXPECT_EQ(find("a{99999999999}", "a"), std::nullopt);
}

TEST(RegularExpressionMatcher, FindsNothingForAnExpressionThatIsTooLong) {
  const std::string longest(RegularExpressionMatcher::longestExpression, 'a');

  EXPECT_EQ(find(longest, longest), range(0, longest.size() - 1));
  EXPECT_EQ(find(longest + "a", longest + "a"), std::nullopt);
}

TEST(RegularExpressionMatcher, GivesUpOnATextThatTakesTooLong) {
  const std::string text(64, 'a');

  EXPECT_EQ(find("(a+)+$", text + "!"), std::nullopt);
}

TEST(RegularExpressionMatcher, GoesOnWithTheNextTextAfterOneThatTookTooLong) {
  RegularExpressionMatcher matcher("(a+)+$", {});
  const std::string text(64, 'a');
  ASSERT_EQ(matcher.find(text + "!"), std::nullopt);

  EXPECT_EQ(matcher.find("baa"), range(1, 2));
}

TEST(RegularExpressionMatcher, GivesUpOnATextThatTakesTooMuchMemory) {
  EXPECT_EQ(find("(.|\\n)*x", std::string(4 << 20, 'a')), std::nullopt);
}

TEST(RegularExpressionMatcher, SurvivesDeepNesting) {
  const std::string open(4000, '(');
  const std::string few(50, '(');

  EXPECT_EQ(find(open, open), std::nullopt);
  EXPECT_EQ(find(few + "a" + std::string(50, ')'), "ba"), range(1, 1));
}

}  // namespace
