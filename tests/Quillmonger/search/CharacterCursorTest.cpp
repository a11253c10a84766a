#include "Quillmonger/search/CharacterCursor.h"

#include <gtest/gtest.h>
#include <unicode/brkiter.h>
#include <unicode/unistr.h>

#include <memory>
#include <set>
#include <string>

namespace {

using quillmonger::CharacterCursor;
using quillmonger::CharacterRange;
using quillmonger::characterRange;

// Every byte offset at which ICU starts a character.
std::set<std::size_t> boundaries(const std::string& text) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::BreakIterator> iterator(
      icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  const auto wide = icu::UnicodeString::fromUTF8(text);
  iterator->setText(wide);
  std::set<std::size_t> offsets;
  for (auto at = iterator->first(); at != icu::BreakIterator::DONE; at = iterator->next()) {
    std::string before;
    wide.tempSubString(0, at).toUTF8String(before);
    offsets.insert(before.size());
  }
  return offsets;
}

class CharacterBoundaries : public testing::TestWithParam<const char*> {};

TEST_P(CharacterBoundaries, AreThoseOfTheUnicodeRules) {
  const std::string text = GetParam();
  const auto expected = boundaries(text);

  for (std::size_t offset = 0; offset <= text.size(); ++offset) {
    CharacterCursor cursor(text);
    EXPECT_EQ(cursor.advanceTo(offset), expected.contains(offset)) << "at byte " << offset;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CharacterBoundaries,
    testing::Values("", "plain words", "line\r\nline\n\rline\r", "e\u0301 and \u00E9", "\u0301starts with a mark",
                    "\u4E2D\u6587\u5B57", "\uD55C\uAE00 \u1112\u1161\u11AB\u1112\u1161",
                    "\u0915\u093F\u0924\u093E\u092C", "\U0001F468\u200D\U0001F469\u200D\U0001F467 \U0001F44D\U0001F3FD",
                    "\U0001F600\u200D x\u200D\U0001F600", "\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7\U0001F1EE",
                    "\u06001 \u0600\u0601a", "a\u200B\u0301b", "\u0E01\u0E33 \u2764\uFE0F\u200D\U0001F525",
                    "tab\tand\u0000nul"));

TEST(CharacterRangeOfBytes, CoversTheCharactersThatTheBytesLieIn) {
  const std::string text = "ae\u0301bc";

  EXPECT_EQ(characterRange(text, 0, 1), (CharacterRange{0, 0}));
  EXPECT_EQ(characterRange(text, 2, 4), (CharacterRange{1, 1})) << "the accent alone";
  EXPECT_EQ(characterRange(text, 1, 6), (CharacterRange{1, 3}));
}

TEST(CharacterRangeOfBytes, IsOneCharacterWideForAnEmptyRange) {
  EXPECT_EQ(characterRange("abc", 1, 1), (CharacterRange{1, 1}));
}

}  // namespace
