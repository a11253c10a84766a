#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/ViewStage.h"

namespace {

using quillmonger::CharacterRange;
using testsupport::ViewStage;
namespace keys = quillmonger::keys;

constexpr std::string_view text = "public.utf8-plain-text";

class AppView : public testing::Test {
 protected:
  void showTexts(int count) {
    std::vector<ViewStage::Item> items;
    for (int number = 0; number < count; ++number)
      items.push_back(m_stage.makeItem(std::to_string(number)));
    m_stage.show(items);
  }

  [[nodiscard]] std::string textOf(QQuickItem* item) const { return item->property("text").toString().toStdString(); }

  [[nodiscard]] bool isInView(QQuickItem* row) {
    QQuickItem* list = m_stage.find("HistoryList");
    const QRectF place = row->mapRectToItem(list, row->boundingRect());
    return place.top() >= 0 && place.bottom() <= list->height();
  }

  [[nodiscard]] QQuickItem* selectedRow() {
    QQuickItem* highlight = m_stage.find("RowHighlight");
    return highlight == nullptr ? nullptr : highlight->parentItem();
  }

  [[nodiscard]] QPoint middleOf(QQuickItem* item) const {
    return item->mapToScene(item->boundingRect().center()).toPoint();
  }

  void activate() {
    m_stage.view().requestActivate();
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_stage.view().isActive(); }));
  }

  ViewStage m_stage;
};

TEST_F(AppView, ShowsTheNoteForAnEmptyHistory) {
  EXPECT_NE(m_stage.find("EmptyStateView"), nullptr);
  EXPECT_EQ(m_stage.find("HistoryList"), nullptr);
}

TEST_F(AppView, ShowsNoNoteForASearchWithoutAHit) {
  showTexts(3);
  m_stage.view();

  m_stage.showRows({});

  EXPECT_EQ(m_stage.find("EmptyStateView"), nullptr);
  EXPECT_EQ(m_stage.find("HistoryList")->property("count").toInt(), 0);
}

TEST_F(AppView, ShowsARowForEachItemInOrder) {
  showTexts(3);

  const auto lines = m_stage.findAll("ClipboardItemText");

  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(textOf(lines[0]), "0");
  EXPECT_EQ(textOf(lines[2]), "2");
}

TEST_F(AppView, PutsTheKeyboardIntoTheSearchField) {
  m_stage.view();
  m_stage.view().requestActivate();

  EXPECT_TRUE(QTest::qWaitFor([this] { return m_stage.find("SearchTextField")->hasActiveFocus(); }));
}

TEST_F(AppView, WritesTypedLettersToTheSearchTerm) {
  m_stage.view().requestActivate();
  ASSERT_TRUE(QTest::qWaitFor([this] { return m_stage.find("SearchTextField")->hasActiveFocus(); }));

  QTest::keyClick(&m_stage.view(), Qt::Key_A);

  EXPECT_EQ(m_stage.searchTerm().value(), "a");
}

TEST_F(AppView, EmptiesTheFieldWhenTheTermIsCleared) {
  m_stage.view();
  m_stage.searchTerm().set("term");
  ASSERT_EQ(textOf(m_stage.find("SearchTextField")), "term");

  m_stage.searchTerm().set("");

  EXPECT_EQ(textOf(m_stage.find("SearchTextField")), "");
}

TEST_F(AppView, ShowsTheIncognitoIconAtOnce) {
  m_stage.view();

  m_stage.defaults().set(keys::isIncognitoMode, true);

  EXPECT_EQ(m_stage.find("SearchIcon")->property("name").toString(), "IncognitoIcon");
}

TEST_F(AppView, TogglesThePreviewByButtonAndByControlP) {
  QTest::mouseClick(&m_stage.view(), Qt::LeftButton, {}, middleOf(m_stage.find("TogglePreviewButton")));
  EXPECT_EQ(m_stage.previewCommands(), std::vector<std::string>{"toggle"});

  activate();
  QTest::keyClick(&m_stage.view(), Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(m_stage.previewCommands(), (std::vector<std::string>{"toggle", "toggle"}));
}

TEST_F(AppView, CopiesFromThePreviewWhatIsSelectedThere) {
  activate();
  QTest::keyClick(&m_stage.view(), Qt::Key_A);
  QTest::keyClick(&m_stage.view(), Qt::Key_A, Qt::ControlModifier);
  QGuiApplication::clipboard()->setText("before");

  m_stage.setPreviewSelection(true);
  QTest::keyClick(&m_stage.view(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(m_stage.previewCommands(), std::vector<std::string>{"copy"});
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "before");

  m_stage.setPreviewSelection(false);
  QTest::keyClick(&m_stage.view(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "a");
}

TEST_F(AppView, SelectsThePreviewsTextOnlyWhileTheFieldIsEmpty) {
  activate();

  QTest::keyClick(&m_stage.view(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(m_stage.previewCommands(), std::vector<std::string>{"select all"});

  QTest::keyClick(&m_stage.view(), Qt::Key_X);
  QTest::keyClick(&m_stage.view(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(m_stage.previewCommands().size(), 1U);
  EXPECT_EQ(m_stage.find("SearchTextField")->property("selectedText").toString(), "x");
}

TEST_F(AppView, ScrollsThePreviewByPages) {
  activate();

  QTest::keyClick(&m_stage.view(), Qt::Key_PageDown);
  QTest::keyClick(&m_stage.view(), Qt::Key_PageUp);

  EXPECT_EQ(m_stage.previewCommands(), (std::vector<std::string>{"scroll 1", "scroll -1"}));
}

TEST_F(AppView, KeepsTheSelectedRowInViewFarDownAndUpAgain) {
  showTexts(50);
  m_stage.view();

  m_stage.select(40);
  m_stage.view();
  ASSERT_NE(selectedRow(), nullptr);
  EXPECT_TRUE(isInView(selectedRow()));

  m_stage.select(0);
  m_stage.view();
  ASSERT_NE(selectedRow(), nullptr);
  EXPECT_TRUE(isInView(selectedRow()));
}

TEST_F(AppView, KeepsTheSelectedRowInViewAfterANewSearch) {
  showTexts(50);
  m_stage.view();
  m_stage.select(40);
  m_stage.view();

  showTexts(30);
  m_stage.view();

  ASSERT_NE(selectedRow(), nullptr);
  EXPECT_EQ(selectedRow()->property("index").toInt(), 0);
  EXPECT_TRUE(isInView(selectedRow()));
}

TEST_F(AppView, SelectsByAClickAndPastesByADoubleClick) {
  showTexts(3);
  QQuickItem* row = m_stage.findAll("ClipboardItem").at(1);

  QTest::mouseClick(&m_stage.view(), Qt::LeftButton, {}, middleOf(row));
  EXPECT_EQ(selectedRow(), row);
  EXPECT_TRUE(m_stage.clipboard().writes().empty());

  QTest::mouseDClick(&m_stage.view(), Qt::LeftButton, {}, middleOf(row));
  EXPECT_EQ(m_stage.clipboard().writes().size(), 1U);
}

TEST_F(AppView, HasHintsForTheFirstNineRowsAndReturnForTheSelectedOne) {
  showTexts(12);

  const auto hints = m_stage.findAll("QuickPasteKey");

  ASSERT_EQ(hints.size(), 8U);
  EXPECT_EQ(textOf(hints.front()), "Ctrl+2");
  EXPECT_EQ(textOf(hints.back()), "Ctrl+9");
  EXPECT_EQ(m_stage.findAll("ReturnKey").size(), 1U);
}

TEST_F(AppView, HasNoHintsWhenTheyAreTurnedOff) {
  m_stage.defaults().set(keys::showKeyboardShortcuts, false);
  showTexts(3);

  EXPECT_TRUE(m_stage.findAll("QuickPasteKey").empty());
  EXPECT_TRUE(m_stage.findAll("ReturnKey").empty());
}

TEST_F(AppView, SaysUnderOptionWhatAPasteWillDo) {
  showTexts(2);
  EXPECT_TRUE(m_stage.findAll("PasteWithoutFormattingText").empty());

  m_stage.isOptionPressed().set(true);
  EXPECT_EQ(m_stage.findAll("PasteWithoutFormattingText").size(), 2U);

  m_stage.defaults().set(keys::alwaysPasteWithoutFormatting, true);
  EXPECT_EQ(m_stage.findAll("PasteWithFormattingText").size(), 2U);
}

TEST_F(AppView, MarksAFileAndGivesItNoFormattingHint) {
  m_stage.show({m_stage.makeItem("file:///tmp/a%20b", "public.file-url")});
  m_stage.isOptionPressed().set(true);

  EXPECT_NE(m_stage.find("FileIndicator"), nullptr);
  EXPECT_EQ(m_stage.find("PasteWithoutFormattingText"), nullptr);
  EXPECT_EQ(textOf(m_stage.find("ClipboardItemText")), "file:///tmp/a b");
}

TEST_F(AppView, ShowsAPictureAsARowWithoutText) {
  m_stage.show({m_stage.makeItem("bytes", "public.png")});

  EXPECT_NE(m_stage.find("PhotoIndicator"), nullptr);
  EXPECT_EQ(textOf(m_stage.find("ClipboardItemText")), "");
}

TEST_F(AppView, MovesARowWithoutAnIconToTheLeft) {
  m_stage.show({m_stage.makeItem("with", text, "Mail"), m_stage.makeItem("without")});

  const auto lines = m_stage.findAll("ClipboardItemText");

  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(m_stage.findAll("AppIcon").size(), 1U);
  EXPECT_LT(lines[1]->mapToScene({}).x(), lines[0]->mapToScene({}).x());
}

TEST_F(AppView, ShowsASampleAndTheMarkBesideATextThatNamesAColour) {
  m_stage.show({m_stage.makeItem("#ff0000"), m_stage.makeItem("prose")});

  ASSERT_NE(m_stage.find("ColorBar"), nullptr);
  EXPECT_EQ(m_stage.find("ColorBar")->property("color").value<QColor>(), QColor(255, 0, 0));
  EXPECT_EQ(m_stage.findAll("ColorBar").size(), 1U);
  EXPECT_EQ(m_stage.findAll("OculetIndicator").size(), 1U);
}

TEST_F(AppView, ShowsNoSampleWhenTheSettingSaysSo) {
  m_stage.defaults().set(keys::showColorIndicator, false);
  m_stage.show({m_stage.makeItem("#ff0000")});

  EXPECT_EQ(m_stage.find("ColorBar"), nullptr);
  EXPECT_NE(m_stage.find("OculetIndicator"), nullptr);
}

TEST_F(AppView, MarksADateAndADocumentAsRecognised) {
  m_stage.show({m_stage.makeItem("2026-11-21T02:25:50Z"), m_stage.makeItem("{\"a\": 1}"), m_stage.makeItem("a: 1")});

  EXPECT_EQ(m_stage.findAll("OculetIndicator").size(), 2U);
}

TEST_F(AppView, ShowsAHitInBoldAndTheRestDimmed) {
  const auto item = m_stage.makeItem("xabcy");
  m_stage.show({item});

  m_stage.showRows({{item.get(), 0.0, CharacterRange{1, 3}}});

  EXPECT_NE(textOf(m_stage.find("ClipboardItemText")).find("<b>abc</b>"), std::string::npos);
}

TEST_F(AppView, CutsALineWhereTheSettingSays) {
  showTexts(1);
  EXPECT_EQ(m_stage.find("ClipboardItemText")->property("elide").toInt(), Qt::ElideMiddle);

  m_stage.defaults().set(keys::truncationMode, quillmonger::TruncationMode::head);
  EXPECT_EQ(m_stage.find("ClipboardItemText")->property("elide").toInt(), Qt::ElideLeft);

  m_stage.defaults().set(keys::truncationMode, quillmonger::TruncationMode::tail);
  EXPECT_EQ(m_stage.find("ClipboardItemText")->property("elide").toInt(), Qt::ElideRight);
}

TEST_F(AppView, HasAScrollBarOnlyForALongListAndWhenItIsWanted) {
  showTexts(3);
  EXPECT_EQ(m_stage.find("ScrollIndicator"), nullptr);

  showTexts(50);
  EXPECT_NE(m_stage.find("ScrollIndicator"), nullptr);

  m_stage.defaults().set(keys::showScrollbar, false);
  EXPECT_EQ(m_stage.find("ScrollIndicator"), nullptr);
}

TEST_F(AppView, FollowsTheForcedColourScheme) {
  using quillmonger::ColorScheme;
  m_stage.defaults().set<std::optional<ColorScheme>>(keys::selectedColorScheme, ColorScheme::dark);
  const auto dark = m_stage.find("WindowBackground")->property("color").value<QColor>();

  m_stage.defaults().set<std::optional<ColorScheme>>(keys::selectedColorScheme, ColorScheme::light);
  const auto light = m_stage.find("WindowBackground")->property("color").value<QColor>();

  EXPECT_LT(dark.lightness(), light.lightness());
}

TEST_F(AppView, HasSquareCornersWithoutACompositor) {
  m_stage.view().rootObject()->setProperty("blendsTransparency", false);

  EXPECT_EQ(m_stage.find("WindowBackground")->property("radius").toInt(), 0);
}

TEST_F(AppView, HasRoundCornersUnderACompositor) {
  EXPECT_EQ(m_stage.find("WindowBackground")->property("radius").toInt(), 15);
}

}  // namespace
