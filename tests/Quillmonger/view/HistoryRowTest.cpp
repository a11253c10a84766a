#include <gtest/gtest.h>

#include <QTest>

#include "Quillmonger/resources/EmojiFont.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/ViewStage.h"

namespace {

using testsupport::ViewStage;
namespace keys = quillmonger::keys;

constexpr std::string_view text = "public.utf8-plain-text";
constexpr std::string_view png = "public.png";

class HistoryRow : public testing::Test {
 protected:
  void showRedPicture() {
    m_stage.pictures().setPicture("red", {2, 2}, {0xFFFF0000});
    m_stage.show({m_stage.makeItem("red", png)});
    m_stage.view();
  }

  // They lie above the whole view.
  [[nodiscard]] std::vector<QQuickItem*> tips() {
    std::vector<QQuickItem*> found;
    testsupport::collect(m_stage.view().contentItem(), "HoverTip", found);
    return found;
  }

  [[nodiscard]] QPoint middleOf(QQuickItem* item) const {
    return item->mapToScene(item->boundingRect().center()).toPoint();
  }

  ViewStage m_stage;
};

TEST_F(HistoryRow, ShowsEmojiInColourAsOneWithAllThatBelongsToThem) {
  if (quillmonger::colourEmojiFamily().isEmpty()) GTEST_SKIP() << "no font here has emoji in colour";
  m_stage.show({m_stage.makeItem("1"), m_stage.makeItem("👍"), m_stage.makeItem("👍🏽")});
  const QImage picture = m_stage.picture();
  const auto isColourful = [&picture](QQuickItem* line) {
    const QRect area = line->mapRectToScene(line->boundingRect()).toAlignedRect();
    for (int x = area.left(); x < area.right(); ++x)
      for (int y = area.top(); y < area.bottom(); ++y)
        if (picture.pixelColor(x, y).hslSaturation() > 60 && picture.pixelColor(x, y).hslHue() < 90) return true;
    return false;
  };

  const auto lines = m_stage.findAll("ClipboardItemText");

  EXPECT_FALSE(isColourful(lines.at(0)));
  EXPECT_LT(lines.at(0)->implicitWidth(), lines.at(1)->implicitWidth() * 0.6) << "a digit of the usual font";
  EXPECT_TRUE(isColourful(lines.at(1)));
  EXPECT_TRUE(isColourful(lines.at(2)));
  EXPECT_EQ(lines.at(2)->implicitWidth(), lines.at(1)->implicitWidth());
}

TEST_F(HistoryRow, ShowsAFlagOfSeveralCharactersAsOneGlyph) {
  if (quillmonger::colourEmojiFamily().isEmpty()) GTEST_SKIP() << "no font here has emoji in colour";
  m_stage.show({m_stage.makeItem("👍"), m_stage.makeItem("\U0001F3F3\uFE0F\u200D\U0001F308")});
  m_stage.picture();

  const auto lines = m_stage.findAll("ClipboardItemText");

  EXPECT_EQ(lines.at(1)->implicitWidth(), lines.at(0)->implicitWidth());
}

TEST_F(HistoryRow, ShowsAGradientOfAPicturesColourInTheTextsPlace) {
  showRedPicture();
  m_stage.finishWork();

  QQuickItem* bar = m_stage.find("ColorBar");
  ASSERT_NE(bar, nullptr);
  EXPECT_TRUE(bar->property("withGradient").toBool());
  EXPECT_EQ(bar->property("color").value<QColor>(), QColor(255, 0, 0));
  EXPECT_EQ(m_stage.find("ClipboardItemText"), nullptr);
  EXPECT_NE(m_stage.find("PhotoIndicator"), nullptr);
}

TEST_F(HistoryRow, ShowsAnEmptyTextUntilAPicturesColourIsKnown) {
  showRedPicture();

  EXPECT_EQ(m_stage.find("ColorBar"), nullptr);
  ASSERT_NE(m_stage.find("ClipboardItemText"), nullptr);
  EXPECT_EQ(m_stage.find("ClipboardItemText")->property("text").toString(), QString());
}

TEST_F(HistoryRow, ShowsAnEmptyTextForAPictureWithoutAColour) {
  m_stage.show({m_stage.makeItem("broken", png)});
  m_stage.view();
  m_stage.finishWork();

  EXPECT_EQ(m_stage.find("ColorBar"), nullptr);
  ASSERT_NE(m_stage.find("ClipboardItemText"), nullptr);
  EXPECT_EQ(m_stage.find("ClipboardItemText")->property("text").toString(), QString());
}

TEST_F(HistoryRow, ShowsThePlainSampleOfATextsColourBesideItsText) {
  m_stage.show({m_stage.makeItem("#ff0000")});

  ASSERT_NE(m_stage.find("ColorBar"), nullptr);
  EXPECT_FALSE(m_stage.find("ColorBar")->property("withGradient").toBool());
  EXPECT_NE(m_stage.find("ClipboardItemText"), nullptr);
  EXPECT_NE(m_stage.find("OculetIndicator"), nullptr);
}

TEST_F(HistoryRow, ShowsTheFormattingHintForAPictureWithoutAColourOnly) {
  showRedPicture();
  m_stage.isOptionPressed().set(true);
  EXPECT_NE(m_stage.find("PasteWithoutFormattingText"), nullptr);

  m_stage.finishWork();
  EXPECT_EQ(m_stage.find("PasteWithoutFormattingText"), nullptr);
}

TEST_F(HistoryRow, HasNoKeyHintsWhenTheSettingSaysSo) {
  m_stage.defaults().set(keys::showKeyboardShortcuts, false);
  m_stage.show({m_stage.makeItem("one"), m_stage.makeItem("two")});

  EXPECT_EQ(m_stage.find("QuickPasteKey"), nullptr);
  EXPECT_EQ(m_stage.find("ReturnKey"), nullptr);
}

TEST_F(HistoryRow, HasNoIndicatorsWhenTheSettingSaysSo) {
  m_stage.defaults().set(keys::showContentTypeIndicators, false);
  m_stage.show({m_stage.makeItem("#ff0000"), m_stage.makeItem("file:///a", "public.file-url")});

  EXPECT_EQ(m_stage.find("OculetIndicator"), nullptr);
  EXPECT_EQ(m_stage.find("FileIndicator"), nullptr);
}

TEST_F(HistoryRow, OrdersIconTextSampleIndicatorAndKeyFromTheLeadingEdge) {
  m_stage.show({m_stage.makeItem("one", text, "Mail"), m_stage.makeItem("#ff0000", text, "Mail")});

  qreal left = 0;
  for (const char* identifier : {"AppIcon", "ClipboardItemText", "ColorBar", "OculetIndicator", "QuickPasteKey"}) {
    ASSERT_NE(m_stage.find(identifier), nullptr) << identifier;
    const qreal place = m_stage.findAll(identifier).back()->mapToScene({}).x();
    EXPECT_GT(place, left) << identifier;
    left = place;
  }
}

TEST_F(HistoryRow, NamesTheApplicationWhileThePointerRestsOnItsIcon) {
  m_stage.show({m_stage.makeItem("one", text, "Mail")});
  ASSERT_TRUE(tips().empty());

  QTest::mouseMove(&m_stage.view(), middleOf(m_stage.find("AppIcon")));

  EXPECT_TRUE(QTest::qWaitFor([this] { return !tips().empty(); }));
}

TEST_F(HistoryRow, MakesRowsForWhatIsInViewOnly) {
  std::vector<ViewStage::Item> items;
  for (int number = 0; number < 5000; ++number)
    items.push_back(m_stage.makeItem(std::to_string(number)));
  m_stage.show(items);

  EXPECT_LT(m_stage.findAll("ClipboardItem").size(), 30U);
}

TEST_F(HistoryRow, SelectsNothingByAClickBesideTheRows) {
  m_stage.show({m_stage.makeItem("one"), m_stage.makeItem("two")});
  m_stage.select(1);

  QTest::mouseClick(&m_stage.view(), Qt::LeftButton, {}, {300, 400});

  EXPECT_EQ(m_stage.find("RowHighlight")->parentItem()->property("index").toInt(), 1);
}

TEST_F(HistoryRow, MirrorsItselfWhereTheUserReadsFromTheRight) {
  m_stage.show({m_stage.makeItem("one", text, "Mail")});
  m_stage.view();

  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  m_stage.view();
  const qreal icon = m_stage.find("AppIcon")->mapToScene({}).x();
  const qreal key = m_stage.find("ReturnKey")->mapToScene({}).x();
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);

  EXPECT_GT(icon, key);
}

}  // namespace
