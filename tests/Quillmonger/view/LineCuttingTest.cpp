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
  LineCutting() {
    for (const auto* key : {&keys::showSourceAppIcon, &keys::showKeyboardShortcuts, &keys::showContentTypeIndicators})
      m_stage.defaults().set(*key, false);
  }

  QImage lineOf(const std::string& text, TruncationMode mode, std::optional<CharacterRange> match = std::nullopt) {
    m_stage.defaults().set(keys::truncationMode, mode);
    const auto item = m_stage.makeItem(text);
    m_stage.show({m_stage.makeItem("selected"), item});
    m_stage.showRows({{m_first.get(), 0.0, std::nullopt}, {item.get(), 0.0, match}});
    m_stage.view();
    QQuickItem* line = m_stage.findAll("ClipboardItemText").back();
    m_isCut = line->property("truncated").toBool();
    const QRectF place = line->mapRectToScene(line->boundingRect());
    return m_stage.picture().copy(place.toAlignedRect());
  }

  // Whether the pixels at one end of both are the same.
  static bool haveSameStart(const QImage& one, const QImage& other) {
    return one.copy(0, 0, 4 * cell, one.height()) == other.copy(0, 0, 4 * cell, other.height());
  }
  static bool haveSameEnd(const QImage& one, const QImage& other) {
    return one.copy(one.width() - 4 * cell, 0, 4 * cell, one.height()) ==
           other.copy(other.width() - 4 * cell, 0, 4 * cell, other.height());
  }

  static std::string words(const std::string& first, const std::string& last) {
    std::string text = first;
    for (int word = 0; word < 60; ++word)
      text += " word";
    return text + " " + last;
  }

  ViewStage m_stage;
  ViewStage::Item m_first = m_stage.makeItem("first");
  bool m_isCut = false;
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

TEST_F(LineCutting, KeepsTheBlanksAroundAHit) {
  static_cast<void>(lineOf("one two three", TruncationMode::tail, CharacterRange{4, 6}));
  const qreal marked = m_stage.findAll("ClipboardItemText").back()->implicitWidth();
  static_cast<void>(lineOf("one two three", TruncationMode::tail));
  const qreal plain = m_stage.findAll("ClipboardItemText").back()->implicitWidth();

  EXPECT_GE(marked, plain);
}

}  // namespace
