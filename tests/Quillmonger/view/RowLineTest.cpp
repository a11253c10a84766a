#include "Quillmonger/history/view/RowLine.h"

#include <gtest/gtest.h>

#include "Quillmonger/history/view/AttributedLine.h"

namespace {

using quillmonger::attributedLine;
using quillmonger::CharacterRange;
using quillmonger::onOneLine;
using quillmonger::RowText;
using quillmonger::TextRun;
using quillmonger::TextRuns;

TextRun plain(const char* text) { return {QString::fromUtf8(text), TextRun::Style::plain}; }
TextRun dimmed(const char* text) { return {QString::fromUtf8(text), TextRun::Style::dimmed}; }
TextRun bold(const char* text) { return {QString::fromUtf8(text), TextRun::Style::bold}; }

// With brackets for the tags of a hit.
std::string markupOf(const TextRuns& runs) {
  quillmonger::AttributedLine line;
  line.setHitColor(Qt::black);
  line.setLine(QVariant::fromValue(quillmonger::RowLine{runs}));
  return line.text().replace("<font color=\"#000000\"><b>", "[").replace("</b></font>", "]").toStdString();
}

TextRuns lineWith(std::string_view text, std::size_t lower, std::size_t upper) {
  const CharacterRange range{lower, upper};
  return attributedLine(text, std::span(&range, 1));
}

TEST(AttributedLine, IsPlainWithoutMatches) { EXPECT_EQ(attributedLine("text", {}), TextRuns{plain("text")}); }

TEST(AttributedLine, DimsWhatStandsAroundAHit) {
  EXPECT_EQ(lineWith("xabcy", 1, 3), (TextRuns{dimmed("x"), bold("abc"), dimmed("y")}));
}

TEST(AttributedLine, HasNothingDimmedBeforeAHitAtTheStart) {
  EXPECT_EQ(lineWith("abcy", 0, 2), (TextRuns{bold("abc"), dimmed("y")}));
}

TEST(AttributedLine, HasNothingDimmedBehindAHitAtTheEnd) {
  EXPECT_EQ(lineWith("xabc", 1, 3), (TextRuns{dimmed("x"), bold("abc")}));
}

TEST(AttributedLine, MakesOneCharacterBoldForARangeOfEqualEnds) {
  EXPECT_EQ(lineWith("abc", 1, 1), (TextRuns{dimmed("a"), bold("b"), dimmed("c")}));
}

TEST(AttributedLine, LeavesOutARangePastTheEnd) {
  EXPECT_EQ(lineWith("abc", 3, 5), TextRuns{dimmed("abc")});
  EXPECT_EQ(lineWith("abc", 1, 3), TextRuns{dimmed("abc")});
}

TEST(AttributedLine, CountsCharactersAsTheUserSeesThem) {
  EXPECT_EQ(lineWith("👩‍👩‍👧e\u0301x", 1, 1),
            (TextRuns{dimmed("👩‍👩‍👧"), bold("e\u0301"), dimmed("x")}));
}

TEST(AttributedLine, TakesAnEmojiWithAllThatBelongsToIt) {
  EXPECT_EQ(lineWith("a 👍🏽 b", 2, 2), (TextRuns{dimmed("a "), bold("👍🏽"), dimmed(" b")}));
  EXPECT_EQ(lineWith("👩‍👩‍👧‍👦🏳️‍🌈🇯🇵", 1, 1),
            (TextRuns{dimmed("👩‍👩‍👧‍👦"), bold("🏳️‍🌈"), dimmed("🇯🇵")}));
}

TEST(AttributedLine, TakesALetterWithItsMarks) {
  EXPECT_EQ(lineWith("ae\u0301\u0323b", 1, 1), (TextRuns{dimmed("a"), bold("e\u0301\u0323"), dimmed("b")}));
  EXPECT_EQ(lineWith("שָׁלוֹם", 0, 0), (TextRuns{bold("שָׁ"), dimmed("לוֹם")}));
}

TEST(AttributedLine, TakesAWordThatIsReadFromTheRight) {
  EXPECT_EQ(lineWith("مرحبا بالعالم", 6, 12), (TextRuns{dimmed("مرحبا "), bold("بالعالم")}));
}

TEST(AttributedLine, ShowsSeveralRangesInOrder) {
  const CharacterRange ranges[] = {{0, 0}, {2, 2}};

  EXPECT_EQ(attributedLine("abc", ranges), (TextRuns{bold("a"), dimmed("b"), bold("c")}));
}

TEST(AttributedLineDeathTest, StopsTheProcessAtRangesThatOverlap) {
  const CharacterRange ranges[] = {{1, 2}, {0, 0}};

  EXPECT_DEATH(static_cast<void>(attributedLine("abc", ranges)), "ascending");
}

TEST(RowLine, ShowsAStretchOfWhiteSpaceAsOneBlank) {
  EXPECT_EQ(onOneLine({plain("a\t b\n\n\nc\u2028d")}), TextRuns{plain("a b c d")});
}

TEST(RowLine, ShowsOneBlankWhereTwoRunsMeet) {
  EXPECT_EQ(onOneLine({dimmed("a "), bold(" b")}), (TextRuns{dimmed("a "), bold("b")}));
}

TEST(RowLine, ShowsControlCharactersAsPictures) {
  EXPECT_EQ(onOneLine({plain("a\x1b\x7f")}), TextRuns{plain("a\u241B\u2421")});
}

TEST(RowLine, JoinsTheTwoEndsOfALongText) {
  EXPECT_EQ(rowLine(RowText{"head", "tail"}, std::nullopt), (TextRuns{plain("head"), plain("\u2026tail")}));
}

TEST(RowMarkup, ShowsTextThatLooksLikeMarkupAsItIs) {
  quillmonger::AttributedLine line;
  line.setHitColor(QColor(1, 2, 3));

  line.setLine(QVariant::fromValue(quillmonger::RowLine{{dimmed("<i>&"), bold("b")}}));

  EXPECT_FALSE(line.isPlain());
  EXPECT_EQ(line.text(), QStringLiteral("&lt;i&gt;&amp;<font color=\"#010203\"><b>b</b></font>"));
}

TEST(RowMarkup, KeepsBlanksAtTheEdgesOfAHit) {
  EXPECT_EQ(markupOf({dimmed("one two "), bold("three"), dimmed(" four")}), "one two&nbsp;[three]&nbsp;four");
}

TEST(RowMarkup, KeepsLettersJoinedAcrossTheEdgesOfAHit) {
  EXPECT_EQ(markupOf({dimmed("مر"), bold("حبا")}), "مر[حبا]") << "the second letter joins to none behind it";
  EXPECT_EQ(markupOf({dimmed("عا"), bold("ل"), dimmed("مية")}), "عا[ل\u200D]\u200Dمية");
  EXPECT_EQ(markupOf({dimmed("عَ"), bold("ل")}), "عَ\u200D[\u200Dل]") << "a vowel sign doesn't part its letter";
  EXPECT_EQ(markupOf({dimmed("لם"), bold("x")}), "لם[x]");
}

TEST(RowMarkup, HasNoneForALineWithoutAHit) {
  quillmonger::AttributedLine line;

  line.setLine(QVariant::fromValue(quillmonger::RowLine{{plain("<i>&")}}));

  EXPECT_TRUE(line.isPlain());
  EXPECT_EQ(line.text(), QStringLiteral("<i>&"));
}

}  // namespace
