#include <gtest/gtest.h>

#include <QAccessible>
#include <QQuickItem>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/ViewStage.h"

namespace {

using testsupport::ViewStage;
namespace keys = quillmonger::keys;

// What a screen reader is told.
class HistoryAccessibility : public testing::Test {
 protected:
  HistoryAccessibility() { QAccessible::setActive(true); }

  QAccessibleInterface* at(const QString& identifier, std::size_t index = 0) {
    const auto found = m_stage.findAll(identifier);
    return index < found.size() ? QAccessible::queryAccessibleInterface(found[index]) : nullptr;
  }

  static std::string name(QAccessibleInterface* item) { return item->text(QAccessible::Name).toStdString(); }

  ViewStage m_stage;
};

TEST_F(HistoryAccessibility, CallsTheRowsAList) {
  m_stage.show({m_stage.makeItem("one")});

  ASSERT_NE(at("HistoryList"), nullptr);
  EXPECT_EQ(at("HistoryList")->role(), QAccessible::List);
  EXPECT_EQ(name(at("HistoryList")), "Clipboard history");
}

TEST_F(HistoryAccessibility, TellsEachRowsTextAndPlace) {
  m_stage.show({m_stage.makeItem("one"), m_stage.makeItem("two")});

  auto* row = at("ClipboardItem", 1);

  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->role(), QAccessible::ListItem);
  EXPECT_EQ(name(row), "two");
  EXPECT_EQ(row->text(QAccessible::Description).toStdString(), "2 of 2");
}

TEST_F(HistoryAccessibility, TellsNothingOfRowsThatHaveGone) {
  m_stage.show({m_stage.makeItem("one"), m_stage.makeItem("two"), m_stage.makeItem("three")});
  m_stage.picture();

  m_stage.show({m_stage.makeItem("four")});
  m_stage.picture();

  QAccessibleInterface* list = at("HistoryList");
  std::vector<std::string> told;
  for (int index = 0; index < list->childCount(); ++index)
    if (qobject_cast<QQuickItem*>(list->child(index)->object())->isVisible()) told.push_back(name(list->child(index)));
  EXPECT_EQ(told, std::vector<std::string>{"four"});
}

TEST_F(HistoryAccessibility, TellsWhichRowIsSelected) {
  m_stage.show({m_stage.makeItem("one"), m_stage.makeItem("two")});
  m_stage.select(1);

  EXPECT_TRUE(at("ClipboardItem", 0)->state().selectable);
  EXPECT_FALSE(at("ClipboardItem", 0)->state().selected);
  EXPECT_TRUE(at("ClipboardItem", 1)->state().selected);
}

TEST_F(HistoryAccessibility, SelectsARowOnRequest) {
  m_stage.show({m_stage.makeItem("one"), m_stage.makeItem("two")});

  at("ClipboardItem", 1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());

  EXPECT_TRUE(at("ClipboardItem", 1)->state().selected);
}

TEST_F(HistoryAccessibility, CallsAPictureAPicture) {
  m_stage.show({m_stage.makeItem("bytes", "public.png")});

  EXPECT_EQ(name(at("ClipboardItem")), "Picture");
  EXPECT_EQ(name(at("PhotoIndicator")), "Picture");
}

TEST_F(HistoryAccessibility, LabelsTheSearchField) {
  auto* field = at("SearchTextField");

  ASSERT_NE(field, nullptr);
  EXPECT_EQ(field->role(), QAccessible::EditableText);
  EXPECT_TRUE(field->state().searchEdit);
  EXPECT_EQ(name(field), "Search");
}

TEST_F(HistoryAccessibility, NamesTheButtonOfThePreviewAndPressesIt) {
  auto* button = at("TogglePreviewButton");

  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->role(), QAccessible::Button);
  EXPECT_EQ(name(button), "Show or hide the preview");

  button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(m_stage.previewCommands(), std::vector<std::string>{"toggle"});
}

TEST_F(HistoryAccessibility, SaysThatCopiesAreNotKept) {
  m_stage.defaults().set(keys::isIncognitoMode, true);

  EXPECT_EQ(at("SearchIcon")->role(), QAccessible::Graphic);
  EXPECT_EQ(name(at("SearchIcon")), "Incognito: copies are not kept");
}

TEST_F(HistoryAccessibility, NamesWhatMarksARow) {
  m_stage.show({m_stage.makeItem("#ff0000", "public.utf8-plain-text", "Mail"),
                m_stage.makeItem("file:///a", "public.file-url")});

  EXPECT_EQ(name(at("AppIcon")), "Copied from Mail");
  EXPECT_EQ(name(at("ColorBar")), "Colour #FF0000");
  EXPECT_EQ(name(at("OculetIndicator")), "Recognised content");
  EXPECT_EQ(name(at("FileIndicator")), "File");
}

TEST_F(HistoryAccessibility, ReadsTheNoteOfAnEmptyHistory) {
  EXPECT_EQ(at("EmptyStateView")->role(), QAccessible::StaticText);
  EXPECT_EQ(name(at("EmptyStateView")), "Nothing copied yet. Your next copy shows up here.");
}

TEST_F(HistoryAccessibility, NamesTheScrollBar) {
  std::vector<ViewStage::Item> items;
  for (int number = 0; number < 50; ++number)
    items.push_back(m_stage.makeItem(std::to_string(number)));
  m_stage.show(items);

  EXPECT_EQ(at("ScrollIndicator")->role(), QAccessible::ScrollBar);
  EXPECT_EQ(name(at("ScrollIndicator")), "Scroll bar");
}

}  // namespace
