#include <gtest/gtest.h>

#include <QTest>
#include <QWheelEvent>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/PreviewStage.h"
#include "tests/support/InLocale.h"

namespace {

using testsupport::PreviewStage;
namespace keys = quillmonger::keys;

class PreviewView : public testing::Test {
 protected:
  void show(const PreviewStage::Item& item) {
    m_stage.select(item);
    m_stage.load();
    m_stage.view();
  }
  [[nodiscard]] std::string textOf(const QString& identifier) {
    QQuickItem* item = m_stage.find(identifier);
    return item == nullptr ? "(absent)" : item->property("text").toString().toStdString();
  }
  [[nodiscard]] std::string manyLines() const {
    std::string text;
    for (int line = 0; line < 200; ++line)
      text += "line\n";
    return text;
  }

  testsupport::InLocale m_locale{"en_US"};
  PreviewStage m_stage;
};

TEST_F(PreviewView, ShowsTheNoteAndNoFooterWithoutASelection) {
  m_stage.view();

  EXPECT_NE(m_stage.find("PreviewEmptyStateView"), nullptr);
  EXPECT_EQ(m_stage.find("PreviewContentView"), nullptr);
  EXPECT_EQ(m_stage.find("PreviewFooter"), nullptr);
}

TEST_F(PreviewView, ShowsTheSelectedItemInsteadOfTheNote) {
  show(m_stage.makeItem("text"));

  EXPECT_EQ(m_stage.find("PreviewEmptyStateView"), nullptr);
  EXPECT_EQ(textOf("TextPiece"), "text");
  EXPECT_NE(m_stage.find("PreviewFooter"), nullptr);
}

TEST_F(PreviewView, BuildsNoContentWhileTheWindowIsHidden) {
  m_stage.setWindowVisible(false);
  show(m_stage.makeItem("text"));
  EXPECT_EQ(m_stage.find("PreviewContentView"), nullptr);

  m_stage.setWindowVisible(true);

  EXPECT_EQ(textOf("TextPiece"), "text");
}

TEST_F(PreviewView, IsThreeHundredAndThirtyTwoPointsWideAndAsHighAsTheWindow) {
  QQuickItem* pane = m_stage.find("PreviewView");

  EXPECT_EQ(pane->size(), QSizeF(332, 445));
  EXPECT_EQ(pane->position(), QPointF(0, 0));
  EXPECT_EQ(m_stage.view().rootObject()->implicitWidth(), 332);
}

TEST_F(PreviewView, TellsTheItemsFactsBelowIt) {
  show(m_stage.makeItem("one\ntwo", "public.utf8-plain-text", "Editor"));

  EXPECT_EQ(textOf("PreviewAppName"), "Editor");
  EXPECT_EQ(textOf("PreviewDetails"), "7 bytes • 2 lines");
  EXPECT_EQ(textOf("PreviewRelativeDate"), "3 hours ago");
  EXPECT_EQ(textOf("PreviewPasteCount"), "Pasted 0 times");
  EXPECT_NE(m_stage.find("AppIcon"), nullptr);
}

TEST_F(PreviewView, DividesTheFactsFromTheItemByAFaintRule) {
  show(m_stage.makeItem("text"));

  QQuickItem* rule = m_stage.find("PreviewFooterRule");
  EXPECT_EQ(rule->height(), 1);
  EXPECT_EQ(rule->opacity(), 0.25);
  EXPECT_GT(rule->mapToScene(QPointF()).x(), 10);
}

TEST_F(PreviewView, LeavesOutTheIconAndTheNameWithoutASourceApplication) {
  show(m_stage.makeItem("text"));

  EXPECT_EQ(m_stage.find("AppIcon"), nullptr);
  EXPECT_EQ(m_stage.find("PreviewAppName"), nullptr);
  EXPECT_EQ(textOf("PreviewDetails"), "4 bytes • 1 line");
}

TEST_F(PreviewView, CountsAPasteAtOnce) {
  const auto item = m_stage.makeItem("text");
  show(item);

  item->paste(quillmonger::ClipboardItemViewModel::Invert::no);

  EXPECT_EQ(textOf("PreviewPasteCount"), "Pasted 1 time");
}

TEST_F(PreviewView, FitsAPictureToItsWidth) {
  show(m_stage.makePicture(1920, 1080));

  QQuickItem* picture = m_stage.find("PreviewPicture");
  EXPECT_EQ(picture->width(), 332 - 2 - 2 * 16);
  EXPECT_NEAR(picture->height(), picture->width() * 1080 / 1920, 0.01);
  EXPECT_FALSE(picture->property("picture").value<QImage>().isNull());
}

TEST_F(PreviewView, KeepsThePlaceOfAPictureThatIsStillBeingRead) {
  m_stage.select(m_stage.makePicture(1920, 1080));

  QQuickItem* picture = m_stage.find("PreviewPicture");

  ASSERT_NE(picture, nullptr);
  EXPECT_GT(picture->height(), 100);
  EXPECT_TRUE(picture->property("picture").value<QImage>().isNull());
}

TEST_F(PreviewView, ShowsTheFactsButNoPictureWhenItCannotBeDecoded) {
  m_stage.pictures().setPicture("broken", {100, 100});
  show(m_stage.makeItem("broken", "public.png"));

  EXPECT_EQ(m_stage.find("PreviewPicture"), nullptr);
  EXPECT_NE(m_stage.find("UnreadablePictureNotice"), nullptr);
  EXPECT_NE(m_stage.find("FadingTextView"), nullptr);
  EXPECT_EQ(textOf("PreviewDetails"), "6 bytes • 100×100");
}

TEST_F(PreviewView, SaysSoWhenNotEvenTheSizeOfAPictureCanBeRead) {
  show(m_stage.makeItem("broken", "public.png"));

  EXPECT_NE(m_stage.find("UnreadablePictureNotice"), nullptr);

  show(m_stage.makeItem("text"));

  EXPECT_EQ(m_stage.find("UnreadablePictureNotice"), nullptr);
}

TEST_F(PreviewView, SaysNothingOfAPictureThatIsStillBeingRead) {
  m_stage.select(m_stage.makePicture(100, 100));
  EXPECT_EQ(m_stage.find("UnreadablePictureNotice"), nullptr);

  m_stage.load();

  EXPECT_EQ(m_stage.find("UnreadablePictureNotice"), nullptr);
}

TEST_F(PreviewView, ShowsNoPictureThatIsNoLongerSelected) {
  m_stage.select(m_stage.makePicture(100, 100));

  show(m_stage.makeItem("text"));

  EXPECT_EQ(m_stage.find("PreviewPicture"), nullptr);
}

TEST_F(PreviewView, LimitsTheHeightOfAStrip) {
  show(m_stage.makePicture(2, 2000));

  QQuickItem* picture = m_stage.find("PreviewPicture");
  EXPECT_LT(picture->height(), 10 * 445);
  EXPECT_NEAR(picture->height() / picture->width(), 1000, 0.5);
}

TEST_F(PreviewView, ShowsTheLocationOfAFile) {
  show(m_stage.makeItem("file:///home/anna/a%20b.pdf", "public.file-url"));

  EXPECT_EQ(textOf("TextPiece"), "file:///home/anna/a b.pdf");
}

TEST_F(PreviewView, ShowsAScrollIndicatorForALongText) {
  show(m_stage.makeItem("short"));
  EXPECT_EQ(m_stage.find("PreviewScrollIndicator"), nullptr);

  show(m_stage.makeItem(manyLines()));

  EXPECT_NE(m_stage.find("PreviewScrollIndicator"), nullptr);
}

TEST_F(PreviewView, StillScrollsWithoutItsScrollIndicator) {
  m_stage.defaults().set(keys::showPreviewPaneScrollbar, false);
  show(m_stage.makeItem(manyLines()));
  EXPECT_EQ(m_stage.find("PreviewScrollIndicator"), nullptr);
  QQuickItem* list = m_stage.find("FadingTextView");
  const double top = list->property("contentY").toReal();

  QWheelEvent turn(QPointF(100, 100), QPointF(100, 100), QPoint(), QPoint(0, -120), Qt::NoButton, {}, Qt::NoScrollPhase,
                   false);
  QCoreApplication::sendEvent(&m_stage.view(), &turn);

  EXPECT_TRUE(QTest::qWaitFor([list, top] { return list->property("contentY").toReal() > top; }));
}

TEST_F(PreviewView, MirrorsItsContentButNotItsPlaceForRightToLeft) {
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  show(m_stage.makeItem("text", "public.utf8-plain-text", "Editor"));

  EXPECT_EQ(m_stage.find("PreviewView")->x(), 0);
  EXPECT_GT(m_stage.find("AppIcon")->mapToScene(QPointF()).x(), 332 / 2);
  EXPECT_LT(m_stage.find("PreviewPasteCount")->mapToScene(QPointF()).x(), 332 / 2);
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(PreviewView, BuildsWithoutAWarning) {
  QStringList warnings;
  static QStringList* sink = nullptr;
  sink = &warnings;
  const auto before = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& message) { sink->append(message); });
  for (const char* text : {"1700000000", "#ff7a59", "{\"a\": 1}", "plain"})
    show(m_stage.makeItem(text, "public.utf8-plain-text", "Editor"));
  show(m_stage.makePicture(100, 100));
  show(m_stage.makeItem(std::string(30'000, 'x')));
  show(nullptr);
  qInstallMessageHandler(before);

  EXPECT_EQ(warnings, QStringList());
}

}  // namespace
