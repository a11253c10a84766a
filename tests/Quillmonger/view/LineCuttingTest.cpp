#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/ViewStage.h"

namespace {

using quillmonger::CharacterRange;
using quillmonger::TruncationMode;
using testsupport::ViewStage;
namespace keys = quillmonger::keys;

constexpr int cell = 24;

// What a line looks like: the columns of the first row's text, each with ink in it or not.
class LineCutting : public testing::Test {
 protected:
  // In a view of its own, since rows that are replaced fade in.
  QImage lineOf(const std::string& text, TruncationMode mode, std::optional<CharacterRange> match = std::nullopt) {
    ViewStage& stage = m_stage.emplace();
    for (const auto* key : {&keys::showSourceAppIcon, &keys::showKeyboardShortcuts, &keys::showContentTypeIndicators})
      stage.defaults().set(*key, false);
    stage.defaults().set(keys::truncationMode, mode);
    const auto selected = stage.makeItem("selected");
    const auto item = stage.makeItem(text);
    stage.show({selected, item});
    stage.showRows({{selected.get(), 0.0, std::nullopt}, {item.get(), 0.0, match}});
    QQuickItem* line = stage.findAll("ClipboardItemText").back();
    m_isCut = line->property("truncated").toBool();
    m_width = line->implicitWidth();
    return stage.picture().copy(line->mapRectToScene(line->boundingRect()).toAlignedRect());
  }

  // Whether the pixels at one end of both are the same.
  static bool haveSameStart(const QImage& one, const QImage& other) {
    return one.copy(0, 0, 4 * cell, one.height()) == other.copy(0, 0, 4 * cell, other.height());
  }
  // Where the middle of the darkest ink is, of the line's width: a hit is darker than what stands around it.
  static double middleOfDarkest(const QImage& line, qreal width) {
    int darkest = 255;
    const auto forEach = [&line](const auto& visit) {
      for (int x = 0; x < line.width(); ++x)
        for (int y = 0; y < line.height(); ++y)
          visit(x, qGray(line.pixel(x, y)));
    };
    forEach([&](int, int gray) { darkest = std::min(darkest, gray); });
    double sum = 0;
    int count = 0;
    forEach([&](int x, int gray) {
      if (gray > darkest + 20) return;
      sum += x;
      ++count;
    });
    return sum / count / width;
  }
  static std::string words(const std::string& first, const std::string& last) {
    std::string text = first;
    for (int word = 0; word < 60; ++word)
      text += " word";
    return text + " " + last;
  }

  std::optional<ViewStage> m_stage;
  bool m_isCut = false;
  qreal m_width = 0;
};

TEST_F(LineCutting, LeavesALineThatFitsWhole) {
  static_cast<void>(lineOf("short", TruncationMode::middle));

  EXPECT_FALSE(m_isCut);
}

TEST_F(LineCutting, KeepsTheStartOfALineThatIsCutAtItsTail) {
  const QImage one = lineOf(words("start", "end"), TruncationMode::tail);
  EXPECT_TRUE(m_isCut);

  EXPECT_EQ(one, lineOf(words("start", "other"), TruncationMode::tail));
  EXPECT_NE(one, lineOf(words("other", "end"), TruncationMode::tail));
}

TEST_F(LineCutting, KeepsTheEndOfALineThatIsCutAtItsHead) {
  const QImage one = lineOf(words("start", "end"), TruncationMode::head);
  EXPECT_TRUE(m_isCut);

  EXPECT_EQ(one, lineOf(words("other", "end"), TruncationMode::head));
  EXPECT_NE(one, lineOf(words("start", "other"), TruncationMode::head));
}

TEST_F(LineCutting, KeepsBothEndsOfALineThatIsCutInItsMiddle) {
  const QImage one = lineOf(words("start", "end"), TruncationMode::middle);
  EXPECT_TRUE(m_isCut);

  EXPECT_TRUE(haveSameStart(one, lineOf(words("start", "end"), TruncationMode::tail)));
  EXPECT_NE(one, lineOf(words("other", "end"), TruncationMode::middle));
  EXPECT_NE(one, lineOf(words("start", "other"), TruncationMode::middle));
}

TEST_F(LineCutting, CutsAtTheRightWhereATextThatRunsFromTheRightBegins) {
  std::string text = "שלום";
  for (int word = 0; word < 60; ++word)
    text += " מילה";
  const QImage whole = lineOf(text + " סוף", TruncationMode::head);
  EXPECT_TRUE(m_isCut);

  EXPECT_EQ(whole, lineOf("אחר" + text.substr(8) + " סוף", TruncationMode::head));
  EXPECT_NE(whole, lineOf(text + " אחר", TruncationMode::head));
}

TEST_F(LineCutting, NeverCutsThroughWhatTheUserSeesAsOneCharacter) {
  std::string marked;
  for (int count = 0; count < 200; ++count)
    marked += "e\u0301\u0323";
  // A single mark that is cut off its letter would stand alone, beside or below the ellipsis.
  for (const auto mode : {TruncationMode::head, TruncationMode::middle, TruncationMode::tail}) {
    const QImage one = lineOf(marked, mode);
    EXPECT_TRUE(m_isCut);
    EXPECT_EQ(one, lineOf(marked + "e\u0301\u0323", mode));
  }
}

TEST_F(LineCutting, LeavesAHitInTheCutPartOutOfSight) {
  const std::string text = words("start", "end");
  const auto middle = CharacterRange{150, 153};

  const QImage one = lineOf(text, TruncationMode::middle, middle);

  EXPECT_TRUE(m_isCut);
  EXPECT_EQ(one, lineOf(text, TruncationMode::middle, CharacterRange{160, 163}));
}

TEST_F(LineCutting, ShowsAHitInBold) {
  const QImage one = lineOf("xabcy", TruncationMode::tail, CharacterRange{1, 3});

  EXPECT_NE(one, lineOf("xabcy", TruncationMode::tail, CharacterRange{0, 0}));
  EXPECT_NE(one, lineOf("xabcy", TruncationMode::tail));
}

TEST_F(LineCutting, ShowsAHitWhereItIsRead) {
  const std::string hebrew = "שלום עולם טוב";
  const auto middleOfHit = [&](const std::string& text, const CharacterRange& match) {
    const QImage line = lineOf(text, TruncationMode::tail, match);
    return middleOfDarkest(line, m_width);
  };

  EXPECT_LT(middleOfHit("one two three", {0, 2}), 0.3) << "at the left";
  EXPECT_GT(middleOfHit(hebrew, {0, 3}), 0.7) << "at the right";
  EXPECT_LT(middleOfHit(hebrew, {10, 12}), 0.3);
}

TEST_F(LineCutting, KeepsTheBlanksAroundAHit) {
  static_cast<void>(lineOf("one two three", TruncationMode::tail, CharacterRange{4, 6}));
  const qreal marked = m_width;
  static_cast<void>(lineOf("one two three", TruncationMode::tail));
  const qreal plain = m_width;

  EXPECT_GE(marked, plain);
}

}  // namespace
