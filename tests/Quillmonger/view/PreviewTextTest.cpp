#include <gtest/gtest.h>

#include <QTest>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/PreviewStage.h"

namespace {

using testsupport::PreviewStage;
namespace keys = quillmonger::keys;

class PreviewText : public testing::Test {
 protected:
  void show(std::string text) {
    m_stage.select(m_stage.makeItem(std::move(text)));
    m_stage.load();
    m_stage.view();
  }
  [[nodiscard]] QQuickItem* list() { return m_stage.find("FadingTextView"); }
  void goToTheEnd() {
    // The height of what has not been laid out is estimated, so that the end is reached in steps.
    for (int step = 0; step < 3; ++step) {
      QMetaObject::invokeMethod(list(), "positionViewAtEnd");
      m_stage.view();
    }
  }
  // Pieces that aren't seen yet come one by one.
  [[nodiscard]] bool isLaidOut() {
    const auto count = list()->property("count").toUInt();
    return QTest::qWaitFor([this, count] { return m_stage.findAll("TextPiece").size() == count; });
  }
  bool copy() {
    const bool isCopied = m_stage.model().copySelection();
    m_stage.load();
    return isCopied;
  }
  void drag(const QPoint& from, const QPoint& to) {
    QTest::mousePress(&m_stage.view(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&m_stage.view(), to);
    QTest::mouseRelease(&m_stage.view(), Qt::LeftButton, {}, to);
  }

  PreviewStage m_stage;
};

std::string lines(int count) {
  std::string text;
  for (int line = 0; line < count; ++line)
    text += "line " + std::to_string(line) + "\n";
  return text;
}

TEST_F(PreviewText, ShowsATextOfExactlyTheLimitWithoutNotice) {
  show(std::string(25'000, 'x'));

  goToTheEnd();

  EXPECT_EQ(m_stage.find("HiddenTextNotice"), nullptr);
  EXPECT_EQ(m_stage.find("TextFade"), nullptr);
}

TEST_F(PreviewText, ShowsTheNoticeBelowALongerText) {
  show(std::string(25'001, 'x'));

  goToTheEnd();

  EXPECT_NE(m_stage.find("HiddenTextNotice"), nullptr);
  EXPECT_NE(m_stage.find("TextFade"), nullptr);
}

TEST_F(PreviewText, ShowsNoNoticeWhenLongTextsAreNotHidden) {
  m_stage.defaults().set(keys::hideLongTextPreview, false);
  show(std::string(100'000, 'x'));

  goToTheEnd();

  EXPECT_EQ(m_stage.find("HiddenTextNotice"), nullptr);
}

TEST_F(PreviewText, FadesOverTheLastHundredthOfItsHeight) {
  show(lines(4000));
  ASSERT_TRUE(isLaidOut());

  goToTheEnd();

  QQuickItem* fade = m_stage.find("TextFade");
  ASSERT_NE(fade, nullptr);
  double height = 0;
  for (QQuickItem* piece : m_stage.findAll("TextPiece"))
    height += piece->height();
  EXPECT_NEAR(fade->height(), height / 100, 0.5);
  EXPECT_NEAR(fade->y() + fade->height(), list()->property("textBottom").toReal(), 0.5);
  EXPECT_GT(fade->height(), 20);
}

TEST_F(PreviewText, IsHiddenInTheLastHalfHundredthOfItsHeight) {
  show(lines(4000));
  ASSERT_TRUE(isLaidOut());
  goToTheEnd();
  QQuickItem* fade = m_stage.find("TextFade");

  const QImage picture = m_stage.view().grabWindow();

  const QColor background = picture.pixelColor(8, 100);
  const int bottom = qRound(fade->mapToScene(QPointF(0, fade->height())).y());
  for (int x = 16; x < 60; ++x) {
    for (int y = bottom - qFloor(fade->height() / 2) + 1; y < bottom; ++y)
      ASSERT_EQ(picture.pixelColor(x, y), background) << x << " " << y;
  }
}

TEST_F(PreviewText, LeadsToTheSettingThatHidesIt) {
  show(std::string(25'001, 'x'));
  goToTheEnd();
  QQuickItem* button = m_stage.find("AppearanceSettingsButton");

  QTest::mouseClick(&m_stage.view(), Qt::LeftButton, {}, button->mapToScene(button->boundingRect().center()).toPoint());

  EXPECT_EQ(m_stage.settingsCount(), 1);
  EXPECT_TRUE(m_stage.defaults()[keys::hideLongTextPreview]);
}

TEST_F(PreviewText, LaysOutOnlyWhatIsSeenOfManyMegabytes) {
  m_stage.defaults().set(keys::hideLongTextPreview, false);
  show(lines(500'000));

  EXPECT_GT(list()->property("count").toInt(), 1000);
  EXPECT_LT(m_stage.findAll("TextPiece").size(), 10U);
  goToTheEnd();

  EXPECT_LT(m_stage.findAll("TextPiece").size(), 10U);
  EXPECT_TRUE(m_stage.findAll("TextPiece").back()->property("text").toString().endsWith("line 499999"));
}

TEST_F(PreviewText, ShowsTheTopOfTheNextItem) {
  show(lines(3000));
  goToTheEnd();

  show("another\n" + lines(100));

  EXPECT_TRUE(m_stage.findAll("TextPiece").front()->property("text").toString().startsWith("another"));
  EXPECT_GE(m_stage.findAll("TextPiece").front()->mapToScene(QPointF()).y(), 0);
}

TEST_F(PreviewText, CopiesAllOfItWhenAllIsSelected) {
  const std::string text = lines(2000);
  show(text);

  m_stage.model().selectAll();
  EXPECT_TRUE(copy());

  ASSERT_EQ(m_stage.copies().size(), 1U);
  EXPECT_EQ(m_stage.copies()[0] + "\n", text);
}

TEST_F(PreviewText, ShowsAFlagOfSeveralCharactersAsOneAndCopiesAllOfThem) {
  const std::string flag = "\U0001F3F3\uFE0F\u200D\U0001F308";
  show(flag + " flag");
  EXPECT_EQ(m_stage.find("TextPiece")->property("text").toString(),
            QStringLiteral("\U0001F3F3\u200D\u200D\U0001F308 flag"));

  m_stage.model().selectAll();
  EXPECT_TRUE(copy());

  EXPECT_EQ(m_stage.copies(), std::vector<std::string>{flag + " flag"});
}

TEST_F(PreviewText, CopiesNothingWhileNothingIsSelected) {
  show("text");

  EXPECT_FALSE(copy());
  EXPECT_TRUE(m_stage.copies().empty());
}

TEST_F(PreviewText, CopiesWhatTheMouseSelected) {
  show("hello");
  QQuickItem* piece = m_stage.find("TextPiece");
  const double middle = piece->height() / 2;

  drag(piece->mapToScene(QPointF(0, middle)).toPoint(), piece->mapToScene(QPointF(200, middle)).toPoint());
  EXPECT_TRUE(copy());

  EXPECT_EQ(m_stage.copies(), std::vector<std::string>{"hello"});
}

TEST_F(PreviewText, SelectsAcrossItsPieces) {
  show(lines(300));
  const auto first = m_stage.findAll("TextPiece").at(0);
  list()->setProperty("contentY", first->y() + first->height() - 100);
  m_stage.view();
  const auto pieces = m_stage.findAll("TextPiece");
  const QPoint edge = pieces.at(1)->mapToScene(QPointF()).toPoint();

  drag(edge + QPoint(0, -20), edge + QPoint(250, 20));
  EXPECT_TRUE(copy());

  EXPECT_FALSE(pieces.at(0)->property("selectedText").toString().isEmpty());
  EXPECT_FALSE(pieces.at(1)->property("selectedText").toString().isEmpty());
  ASSERT_EQ(m_stage.copies().size(), 1U);
  EXPECT_TRUE(lines(300).find(m_stage.copies()[0]) != std::string::npos);
}

TEST_F(PreviewText, ScrollsWhileASelectionGoesOnBeyondItsEdge) {
  show(lines(3000));
  const QPoint start(40, 40);
  const double top = list()->property("contentY").toReal();
  const auto contentY = [this] { return list()->property("contentY").toReal(); };

  QTest::mousePress(&m_stage.view(), Qt::LeftButton, {}, start);
  QTest::mouseMove(&m_stage.view(), start + QPoint(40, 700));
  // Far enough for the piece in which it began to be gone.
  EXPECT_TRUE(QTest::qWaitFor([&] { return contentY() > top + 3000; }, 20'000));
  QTest::mouseMove(&m_stage.view(), start);
  const double end = contentY();
  QTest::mouseRelease(&m_stage.view(), Qt::LeftButton, {}, start);
  m_stage.view();

  EXPECT_EQ(contentY(), end);
  EXPECT_TRUE(copy());
  ASSERT_EQ(m_stage.copies().size(), 1U);
  EXPECT_GT(m_stage.copies()[0].size(), 1000U);
  EXPECT_TRUE(lines(3000).find(m_stage.copies()[0]) != std::string::npos);
}

TEST_F(PreviewText, SelectsAWordByADoubleClick) {
  show("one two three");
  QQuickItem* piece = m_stage.find("TextPiece");
  QRectF place;
  QMetaObject::invokeMethod(piece, "positionToRectangle", Q_RETURN_ARG(QRectF, place), Q_ARG(int, 5));

  QTest::mouseDClick(&m_stage.view(), Qt::LeftButton, {}, piece->mapToScene(place.center()).toPoint());
  EXPECT_TRUE(copy());

  EXPECT_EQ(m_stage.copies(), std::vector<std::string>{"two"});
}

TEST_F(PreviewText, SelectsNothingOfTheNextItem) {
  show("hello");
  m_stage.model().selectAll();

  show("world");
  EXPECT_FALSE(copy());
  EXPECT_TRUE(m_stage.copies().empty());
}

TEST_F(PreviewText, RunsEachParagraphInItsOwnDirection) {
  show("שלום עולם\nand English\nمرحبا");
  QQuickItem* piece = m_stage.find("TextPiece");
  const auto left = [piece](int position) {
    QRectF place;
    QMetaObject::invokeMethod(piece, "positionToRectangle", Q_RETURN_ARG(QRectF, place), Q_ARG(int, position));
    return place.x();
  };

  EXPECT_GT(left(0), piece->width() / 2);
  EXPECT_LT(left(10), piece->width() / 2);
  EXPECT_GT(left(22), piece->width() / 2);
}

TEST_F(PreviewText, ScrollsByPages) {
  show(lines(300));
  const double top = list()->property("contentY").toReal();

  m_stage.model().scrollRequested(1);
  EXPECT_GT(list()->property("contentY").toReal(), top + 100);
  m_stage.model().scrollRequested(-1);

  EXPECT_EQ(list()->property("contentY").toReal(), top);
}

}  // namespace
