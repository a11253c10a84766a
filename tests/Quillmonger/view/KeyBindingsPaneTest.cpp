#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQuickItem>
#include <QTest>

#include "Quillmonger/input/ShortcutNames.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/gallery/KeyBindingsStage.h"
#include "tests/gallery/LongTexts.h"
#include "tests/gallery/SettingsStage.h"

namespace {

using keyboardshortcuts::Shortcut;
namespace shortcutname = quillmonger::shortcutname;
using testsupport::find;
using testsupport::findAll;

class KeyBindingsPane : public testing::Test {
 protected:
  QQuickItem* item(const char* name) { return find(m_stage.pane(), name); }
  void click(QQuickItem* where) {
    QTest::mouseClick(&m_stage.pane(), Qt::LeftButton, {}, where->mapToScene(where->boundingRect().center()).toPoint());
  }
  QString focused() { return m_stage.pane().activeFocusItem()->objectName(); }

  testsupport::KeyBindingsStage m_stage;
};

TEST_F(KeyBindingsPane, HasItsSectionsInTheirOrder) {
  std::vector<QString> labels;
  for (const auto* label : findAll(m_stage.pane(), "SectionLabel"))
    if (const auto text = label->property("text").toString(); !text.isEmpty()) labels.push_back(text);

  EXPECT_EQ(labels, (std::vector<QString>{"Show the history", "Quick Paste", "Paste 1st item", "Paste 2nd item",
                                          "Paste 3rd item"}));
}

TEST_F(KeyBindingsPane, IsAsWideAsItIsToBe) {
  EXPECT_EQ(m_stage.pane().rootObject()->property("contentWidth").toInt(), 480);
}

TEST_F(KeyBindingsPane, ShowsTheChordOfEachName) {
  for (const auto& [name, chord] :
       {std::pair("ActivateRecorder", "Shift+Super+V"), std::pair("QuickPaste1Recorder", "Shift+Super+X"),
        std::pair("QuickPaste2Recorder", "Shift+Super+E"), std::pair("QuickPaste3Recorder", "Shift+Super+R")})
    EXPECT_EQ(item(name)->property("text").toString(), chord);
}

TEST_F(KeyBindingsPane, RecordsAChordForTheNameOfItsField) {
  click(item("QuickPaste2Recorder"));

  m_stage.events().press(96, 0x40000);

  EXPECT_EQ(m_stage.shortcuts().getShortcut(shortcutname::quickPaste()[1]), (Shortcut{96, 0x1000}));
  EXPECT_EQ(m_stage.shortcuts().getShortcut(shortcutname::quickPaste()[0]),
            shortcutname::quickPaste()[0].defaultShortcut);
}

TEST_F(KeyBindingsPane, SwitchesQuickPasteAndSeesItSwitchedElsewhere) {
  click(item("QuickPasteToggle"));
  EXPECT_TRUE(m_stage.defaults()[quillmonger::keys::quickPaste]);

  m_stage.defaults().set(quillmonger::keys::quickPaste, false);
  EXPECT_FALSE(item("QuickPasteToggle")->property("isOn").toBool());
}

TEST_F(KeyBindingsPane, KeepsTheNoteOfQuickPasteToItsWidth) {
  bool isFound = false;
  for (auto* note : m_stage.pane().rootObject()->findChildren<QQuickItem*>()) {
    if (!note->property("maximumWidth").isValid() || note->property("maximumWidth").toInt() != 350) continue;
    isFound = true;
    EXPECT_LE(note->width(), 350);
  }
  EXPECT_TRUE(isFound);
}

TEST_F(KeyBindingsPane, AsksBeforeItRestoresTheDefaults) {
  m_stage.shortcuts().setShortcut(Shortcut{96, 0x1000}, shortcutname::quickPaste()[0]);
  m_stage.shortcuts().setShortcut(Shortcut{97, 0x1000}, shortcutname::activate());
  click(item("RestoreDefaultsButton"));
  ASSERT_TRUE(m_stage.alert().isUp());
  EXPECT_EQ(item("QuickPaste1Recorder")->property("text").toString(), "Ctrl+F5");

  m_stage.alert().answer(0);

  EXPECT_EQ(item("QuickPaste1Recorder")->property("text").toString(), "Shift+Super+X");
  EXPECT_EQ(item("ActivateRecorder")->property("text").toString(), "Ctrl+F6");
}

TEST_F(KeyBindingsPane, IsWalkedByTab) {
  item("ActivateRecorder")->forceActiveFocus(Qt::TabFocusReason);
  std::vector<QString> order{focused()};
  for (int step = 0; step < 5; ++step) {
    QTest::keyClick(&m_stage.pane(), Qt::Key_Tab);
    order.push_back(focused());
  }

  EXPECT_EQ(order, (std::vector<QString>{"ActivateRecorder", "QuickPasteToggle", "QuickPaste1Recorder",
                                         "QuickPaste2Recorder", "QuickPaste3Recorder", "RestoreDefaultsButton"}));
}

TEST_F(KeyBindingsPane, RestoresByReturnFromTheKeyboard) {
  item("RestoreDefaultsButton")->forceActiveFocus(Qt::TabFocusReason);

  QTest::keyClick(&m_stage.pane(), Qt::Key_Return);

  EXPECT_TRUE(m_stage.alert().isUp());
  EXPECT_EQ(item("RestoreDefaultsButton")->property("ownKeys").toList(), QVariantList{int{Qt::Key_Return}});
}

QRectF placeOf(const QQuickItem* item) { return item->mapRectToScene(item->boundingRect()); }

TEST_F(KeyBindingsPane, HasRoomForTextsTwiceAsLong) {
  const testsupport::LongTexts longTexts;
  m_stage.shortcuts().setShortcut(std::nullopt, shortcutname::quickPaste()[0]);

  const auto& view = m_stage.pane();
  for (const char* name : {"ActivateRecorder", "QuickPaste1Recorder", "RestoreDefaultsButton"}) {
    EXPECT_GE(placeOf(item(name)).left(), 0) << name;
    EXPECT_LE(placeOf(item(name)).right(), view.width()) << name;
  }
  EXPECT_FALSE(find(m_stage.pane(), "QuickPaste1Recorder")
                   ->findChild<QQuickItem*>("RecorderText")
                   ->property("truncated")
                   .toBool());
  for (const auto* label : findAll(m_stage.pane(), "SectionLabel"))
    EXPECT_LE(placeOf(label).right(), placeOf(item("ActivateRecorder")).left());
}

TEST_F(KeyBindingsPane, StandsBesideItsLabelsFromTheRightToo) {
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);

  const auto label = placeOf(findAll(m_stage.pane(), "SectionLabel").at(0));
  for (const char* name : {"ActivateRecorder", "QuickPaste3Recorder", "RestoreDefaultsButton"})
    EXPECT_NEAR(placeOf(item(name)).right(), label.left() - 12, 0.5) << name;

  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(KeyBindingsPane, ShowsALongChordInFull) {
  m_stage.shortcuts().setShortcut(Shortcut{121, 0x1B00}, shortcutname::activate());

  const auto* text = item("ActivateRecorder")->findChild<QQuickItem*>("RecorderText");

  EXPECT_EQ(text->property("text").toString(), "Ctrl+Alt+Shift+Super+Page Down");
  EXPECT_FALSE(text->property("truncated").toBool());
}

}  // namespace
