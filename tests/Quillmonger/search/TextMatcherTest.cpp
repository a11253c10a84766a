#include "Quillmonger/search/TextMatcher.h"

#include <gtest/gtest.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "Quillmonger/search/FoldedText.h"
#include "tests/support/InLocale.h"

namespace {

using quillmonger::CharacterRange;
using quillmonger::FoldedText;
using quillmonger::isInert;
using quillmonger::makeTextMatcher;
using quillmonger::SearchOptions;

constexpr SearchOptions anyCase{};
constexpr SearchOptions sameCase{.isCaseSensitive = true};
constexpr SearchOptions expression{.isRegularExpression = true};

std::optional<CharacterRange> find(std::string_view term, std::string_view text, SearchOptions options = anyCase) {
  return makeTextMatcher(term, options)->find(text);
}

std::optional<CharacterRange> range(std::size_t lower, std::size_t upper) { return CharacterRange{lower, upper}; }

TEST(TextMatcher, FindsATermInAnyCaseUnlessCaseMatters) {
  EXPECT_EQ(find("abc", "xABCy"), range(1, 3));
  EXPECT_EQ(find("ABC", "xabcy"), range(1, 3));
  EXPECT_EQ(find("abc", "xABCy", sameCase), std::nullopt);
  EXPECT_EQ(find("ABC", "xABCy", sameCase), range(1, 3));
}

TEST(TextMatcher, FindsTheFirstOccurrenceAlone) { EXPECT_EQ(find("ab", "xxabab"), range(2, 3)); }

TEST(TextMatcher, FindsAMatchOnTheVeryLastCharacter) {
  EXPECT_EQ(find("z", "xyz"), range(2, 2));
  EXPECT_EQ(find("\u00E9", "caf\u00C9"), range(3, 3));
}

TEST(TextMatcher, FindsNothingInAnEmptyOrShorterText) {
  EXPECT_EQ(find("a", ""), std::nullopt);
  EXPECT_EQ(find("abc", "ab"), std::nullopt);
  EXPECT_EQ(find("\u00E9\u00E9", "\u00E9"), std::nullopt);
}

TEST(TextMatcher, CountsCharactersAsTheUserSeesThem) {
  EXPECT_EQ(find("b", "\U0001F468\u200D\U0001F469\u200D\U0001F467b"), range(1, 1));
  EXPECT_EQ(find("b", "a\r\nb"), range(2, 2));
  EXPECT_EQ(find("e\u0301t", "\u00E9t\u00E9"), range(0, 1));
}

TEST(TextMatcher, TakesEquivalentSpellingsAsTheSame) {
  EXPECT_EQ(find("caf\u00E9", "my CAFE\u0301!"), range(3, 6));
  EXPECT_EQ(find("cafe\u0301", "my caf\u00E9!", sameCase), range(3, 6));
}

TEST(TextMatcher, FindsNoPartOfACharacter) {
  EXPECT_EQ(find("e", "e\u0301"), std::nullopt);
  EXPECT_EQ(find("e", "\u00E9"), std::nullopt);
  EXPECT_EQ(find("e", "e\u0301e"), range(1, 1));
}

TEST(TextMatcher, FoldsCaseBeyondAscii) {
  EXPECT_EQ(find("\u0434\u0430", "\u0414\u0410"), range(0, 1));
  EXPECT_EQ(find("STRASSE", "Hauptstra\u00DFe"), range(5, 10));
  EXPECT_EQ(find("k", "273 \u212A"), range(4, 4)) << "the Kelvin sign";
  EXPECT_EQ(find("s", "\u00DF"), std::nullopt) << "half of a sharp s";
}

TEST(TextMatcher, FindsATermBehindCharactersThatFoldToMore) {
  EXPECT_EQ(find("end", "\u00DF\u00DF\u0130 End"), range(4, 6));
}

TEST(TextMatcher, FoldsCaseAsTheLocaleHasIt) {
  for (const auto* const turkic : {"tr_TR", "az_AZ"}) {
    const testsupport::InLocale locale(turkic);
    EXPECT_EQ(find("i", "\u0130"), range(0, 0)) << turkic;
    EXPECT_EQ(find("i", "I"), std::nullopt) << turkic;
    EXPECT_EQ(find("\u0131", "I"), range(0, 0)) << turkic;
    EXPECT_EQ(find("abc", "ABC"), range(0, 2)) << turkic;
  }
  for (const auto* const other : {"en_US", "de_DE", "el_GR", "ar_EG", "ja_JP"}) {
    const testsupport::InLocale locale(other);
    EXPECT_EQ(find("i", "I"), range(0, 0)) << other;
    EXPECT_EQ(find("\u0131", "I"), std::nullopt) << other;
  }
}

TEST(TextMatcher, TakesAFinalSigmaForASigma) {
  const testsupport::InLocale locale("el_GR");

  EXPECT_EQ(find("ΟΔΟΣ", "η οδος"), range(2, 5));
  EXPECT_EQ(find("οδοσ", "ΟΔΟΣ"), range(0, 3));
  EXPECT_EQ(find("οδοσ", "οδος", sameCase), std::nullopt);
}

TEST(TextMatcher, FindsScriptsWithoutCaseInWholeCharacters) {
  EXPECT_EQ(find("كتاب", "هذا كتاب"), range(4, 7));
  EXPECT_EQ(find("ب", "بَ"), std::nullopt) << "a letter that carries a vowel sign";
  EXPECT_EQ(find("が", "か\u3099"), range(0, 0));
  EXPECT_EQ(find("か", "か\u3099"), std::nullopt);
}

TEST(TextMatcher, TakesABrokenTermAsItsReplacement) { EXPECT_EQ(find("\xFF", "a\uFFFD"), range(1, 1)); }

// The fast way for terms of ASCII is right only as long as it knows these.
TEST(TextMatcher, KnowsEveryCharacterThatFoldsToAscii) {
  for (UChar32 character = 0x80; character <= UCHAR_MAX_VALUE; ++character) {
    if (U_IS_SURROGATE(character)) continue;
    std::string text;
    icu::UnicodeString(character).toUTF8String(text);
    const std::string folded = FoldedText(text, FoldedText::Case::folded).text();
    const bool isAscii =
        std::all_of(folded.begin(), folded.end(), [](char byte) { return static_cast<signed char>(byte) >= 0; });
    if (!isAscii) continue;
    EXPECT_EQ(find(folded, text), range(0, 0)) << "U+" << std::hex << character;
  }
}

TEST(TextMatcher, TakesExpressionSyntaxAsItStandsOtherwise) {
  EXPECT_EQ(find("a.c", "abc"), std::nullopt);
  EXPECT_EQ(find("a.c", "xa.c"), range(1, 3));
  EXPECT_EQ(find("^", "a^b"), range(1, 1));
}

TEST(TextMatcher, LetsEveryItemThroughForAnInertTerm) {
  EXPECT_TRUE(isInert("", anyCase));
  EXPECT_TRUE(isInert("", expression));
  EXPECT_TRUE(isInert("^^", expression));
  EXPECT_TRUE(isInert("$", expression));
}

TEST(TextMatcher, TakesAnchorsAsTermsOtherwise) {
  EXPECT_FALSE(isInert("^", anyCase));
  EXPECT_FALSE(isInert("^a", expression));
  EXPECT_FALSE(isInert("^$", expression));
  EXPECT_FALSE(isInert(" ", anyCase));
}

}  // namespace
