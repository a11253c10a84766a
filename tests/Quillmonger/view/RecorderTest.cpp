#include <gtest/gtest.h>

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>
#include <memory>

#include "Defaults/UserDefaults.h"
#include "KeyboardShortcuts/view/QmlModule.h"
#include "KeyboardShortcuts/view/Recorders.h"
#include "Quillmonger/resources/QmlModule.h"
#include "Quillmonger/resources/Texts.h"
#include "Quillmonger/settings/view/QmlModule.h"
#include "tests/gallery/SettingsStage.h"
#include "tests/support/FakeAlertSheet.h"
#include "tests/support/FakeHotKeyService.h"
#include "tests/support/FakeInputSourceService.h"
#include "tests/support/FakeRecordedEvents.h"
#include "tests/support/FakeSymbolicHotKeys.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using keyboardshortcuts::Name;
using keyboardshortcuts::Shortcut;
using Disposition = keyboardshortcuts::RecordedEvents::Disposition;

constexpr auto viewText = R"(
import QtQuick
import KeyboardShortcuts
import Quillmonger.Resources
import Quillmonger.Settings
FocusScope {
    id: root
    required property Recorders recorders
    property Theme theme: Theme { isDark: false }
    width: 400
    height: 200
    focus: true
    Recorder {
        objectName: "Show"; focus: true; recorders: root.recorders; name: "show"; label: "Show the history"
        theme: root.theme
    }
    Recorder { objectName: "Plain"; y: 60; recorders: root.recorders; name: "plain"; label: "Plain"; theme: root.theme }
    PushButton { objectName: "After"; y: 120; text: "After"; theme: root.theme }
})";

constexpr std::uint32_t control = 0x40000;

class RecorderView : public testing::Test {
 protected:
  RecorderView() {
    quillmonger::resourcesview::registerTypes(m_engine);
    quillmonger::settingsview::registerTypes();
    keyboardshortcuts::view::registerTypes();
    for (const Name& name : m_names)
      m_shortcuts.declare(name);
    QQmlComponent component(&m_engine);
    component.setData(viewText, QUrl("qrc:/qt-project.org/imports/Test.qml"));
    m_view.setContent(QUrl(), &component,
                      component.createWithInitialProperties({{"recorders", QVariant::fromValue(&m_recorders)}}));
    m_errors = component.errorString();
  }
  void SetUp() override {
    ASSERT_NE(m_view.rootObject(), nullptr) << m_errors.toStdString();
    m_view.show();
    m_view.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_view));
  }

  QQuickItem* item(const char* name) { return m_view.rootObject()->findChild<QQuickItem*>(name); }
  [[nodiscard]] bool records(const char* name) { return item(name)->property("isRecording").toBool(); }
  QString shown(const char* name) {
    return item(name)->findChild<QQuickItem*>("RecorderText")->property("text").toString();
  }
  void click(QQuickItem* where) {
    QTest::mouseClick(&m_view, Qt::LeftButton, {}, where->mapToScene(where->boundingRect().center()).toPoint());
  }
  // The window has found who has the focus first.
  void settle() { m_runLoop.runPosted(); }

  testsupport::FakeHotKeyService m_service;
  testsupport::FakeSymbolicHotKeys m_symbolicHotKeys;
  defaults::UserDefaults m_store;
  foundation::NotificationCenter m_notificationCenter;
  keyboardshortcuts::KeyboardShortcuts m_shortcuts{m_service, m_symbolicHotKeys, m_store, m_notificationCenter};
  testsupport::LatinInputSource m_inputSources;
  testsupport::FakeRecordedEvents m_events;
  testsupport::FakeAlertSheet m_alert;
  testsupport::VirtualRunLoop m_runLoop;
  int m_beeps = 0;
  std::vector<Name> m_names{{"show", Shortcut{9, 0x300}}, {"plain", std::nullopt}};
  keyboardshortcuts::Recorders m_recorders{
      {m_shortcuts, m_inputSources, m_events, m_alert, m_notificationCenter, m_runLoop, quillmonger::localizedText,
       [] { return std::vector<keyboardshortcuts::MenuItem>(); }, [this] { ++m_beeps; }},
      m_names};
  QQmlEngine m_engine;
  QQuickView m_view{&m_engine, nullptr};
  QString m_errors;
};

TEST_F(RecorderView, ShowsTheChordOrWhatToDo) {
  EXPECT_EQ(shown("Show"), "Shift+Super+V");
  EXPECT_EQ(shown("Plain"), "Record Shortcut");
  EXPECT_TRUE(item("Show")->findChild<QQuickItem*>("RecorderClearButton")->isVisible());
  EXPECT_FALSE(item("Plain")->findChild<QQuickItem*>("RecorderClearButton")->isVisible());
}

TEST_F(RecorderView, DoesNotStartToRecordWhenTheWindowOpensWithItAsTheFirst) {
  settle();

  EXPECT_FALSE(records("Show"));
  EXPECT_FALSE(m_shortcuts.isPaused());
}

TEST_F(RecorderView, DoesNotStartToRecordWhenTheWindowComesToTheFrontAgain) {
  settle();
  QTest::keyClick(&m_view, Qt::Key_Tab);
  ASSERT_TRUE(records("Plain"));
  QWindow other;
  other.show();
  other.requestActivate();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_FALSE(records("Plain")) << "the window has lost the keyboard";

  m_view.requestActivate();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&m_view));

  EXPECT_TRUE(item("Plain")->hasActiveFocus());
  EXPECT_FALSE(records("Plain"));
}

TEST_F(RecorderView, RecordsFromTabOnAndMovesOnByTab) {
  settle();
  item("Show")->forceActiveFocus(Qt::TabFocusReason);

  QTest::keyClick(&m_view, Qt::Key_Tab);
  EXPECT_TRUE(records("Plain"));
  EXPECT_EQ(shown("Plain"), QStringLiteral("Press Shortcut\u2026"));

  ASSERT_EQ(m_events.press(48), Disposition::pass);
  QTest::keyClick(&m_view, Qt::Key_Tab);
  EXPECT_FALSE(records("Plain"));
  EXPECT_TRUE(item("After")->hasActiveFocus());
}

TEST_F(RecorderView, RecordsFromAClickOn) {
  settle();

  click(item("Plain"));

  EXPECT_TRUE(records("Plain"));
  EXPECT_TRUE(m_shortcuts.isPaused());
}

TEST_F(RecorderView, ShowsTheRecordedChordAndStaysInTabsOrder) {
  settle();
  click(item("Plain"));

  EXPECT_EQ(m_events.press(96, control), Disposition::swallow);

  EXPECT_EQ(shown("Plain"), "Ctrl+F5");
  EXPECT_FALSE(records("Plain"));
  QTest::keyClick(&m_view, Qt::Key_Tab);
  EXPECT_TRUE(item("After")->hasActiveFocus());
}

TEST_F(RecorderView, RecordsAgainByReturnSpaceAndAnotherClick) {
  settle();
  click(item("Plain"));
  for (const auto key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Enter}) {
    m_events.press(53);
    ASSERT_FALSE(records("Plain"));
    QTest::keyClick(&m_view, key);
    EXPECT_TRUE(records("Plain")) << key;
  }
  m_events.press(53);

  click(item("Plain"));

  EXPECT_TRUE(records("Plain"));
}

TEST_F(RecorderView, KeepsReturnForItselfAtRest) {
  EXPECT_EQ(item("Show")->property("ownKeys").toList(), QVariantList{int{Qt::Key_Return}});
}

TEST_F(RecorderView, MovesTheRecordingToTheOtherFieldThatIsClicked) {
  settle();
  click(item("Plain"));

  click(item("Show"));

  EXPECT_FALSE(records("Plain"));
  EXPECT_TRUE(records("Show"));
  EXPECT_TRUE(m_shortcuts.isPaused());
}

TEST_F(RecorderView, EndsWhenTheMouseIsReleasedOutsideOfItsPlaceInTheWindow) {
  settle();
  click(item("Plain"));
  const double below = item("Plain")->y() + item("Plain")->height();

  m_events.send({.type = keyboardshortcuts::Event::Type::leftMouseUp, .location = {20, below + 3}});
  EXPECT_TRUE(records("Plain"));
  m_events.send({.type = keyboardshortcuts::Event::Type::leftMouseUp, .location = {20, below + 4}});
  EXPECT_FALSE(records("Plain"));
}

TEST_F(RecorderView, IsClearedByItsButtonAndStaysAtRest) {
  settle();

  click(item("Show")->findChild<QQuickItem*>("RecorderClearButton"));

  EXPECT_EQ(m_shortcuts.getShortcut(m_names[0]), std::nullopt);
  EXPECT_EQ(shown("Show"), "Record Shortcut");
  EXPECT_FALSE(records("Show"));
}

TEST_F(RecorderView, IsClearedByItsButtonAndRecordsOn) {
  settle();
  click(item("Show"));
  ASSERT_TRUE(records("Show"));

  click(item("Show")->findChild<QQuickItem*>("RecorderClearButton"));

  EXPECT_EQ(m_shortcuts.getShortcut(m_names[0]), std::nullopt);
  EXPECT_TRUE(records("Show"));
}

TEST_F(RecorderView, RecordsOnOnceTheAlertThatTookTheKeyboardIsAnswered) {
  m_symbolicHotKeys.entries = {{{true, 96, 0x1000}}};
  settle();
  click(item("Plain"));
  m_events.press(96, control);
  ASSERT_TRUE(m_alert.isUp());
  QWindow sheet;
  sheet.show();
  sheet.requestActivate();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&sheet));

  sheet.hide();
  m_alert.answer(0);

  ASSERT_TRUE(QTest::qWaitForWindowActive(&m_view));
  EXPECT_TRUE(QTest::qWaitFor([this] { return records("Plain"); }));
}

TEST_F(RecorderView, LeavesAHiddenWindowAloneWhenTheAlertIsAnswered) {
  m_symbolicHotKeys.entries = {{{true, 96, 0x1000}}};
  settle();
  click(item("Plain"));
  m_events.press(96, control);
  m_view.hide();

  m_alert.answer(0);
  m_view.show();
  m_view.requestActivate();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&m_view));

  EXPECT_FALSE(records("Plain"));
}

TEST_F(RecorderView, ForgetsThatItWaitsForTheKeyboardWhenTheWindowIsHidden) {
  settle();
  QWindow other;
  other.show();
  other.requestActivate();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));

  // As where the window manager refuses.
  m_view.setFlag(Qt::WindowDoesNotAcceptFocus);
  QMetaObject::invokeMethod(item("Plain"), "record");
  m_view.hide();
  m_view.setFlag(Qt::WindowDoesNotAcceptFocus, false);
  m_view.show();
  m_view.requestActivate();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&m_view));

  EXPECT_FALSE(records("Plain"));
}

TEST_F(RecorderView, TellsAScreenReaderWhatItIsForAndItsChord) {
  QAccessible::setActive(true);
  const auto* field = QAccessible::queryAccessibleInterface(item("Show"));
  ASSERT_NE(field, nullptr);
  EXPECT_EQ(field->role(), QAccessible::HotkeyField);
  EXPECT_EQ(field->text(QAccessible::Name), "Show the history");
  EXPECT_EQ(field->text(QAccessible::Description), "Shift+Super+V");
  EXPECT_TRUE(field->state().focusable);
  const auto* clear =
      QAccessible::queryAccessibleInterface(item("Show")->findChild<QQuickItem*>("RecorderClearButton"));
  ASSERT_NE(clear, nullptr);
  EXPECT_EQ(clear->text(QAccessible::Name), "Clear the shortcut");
}

TEST_F(RecorderView, CutsAChordThatIsTooLongInTheMiddle) {
  m_shortcuts.setShortcut(Shortcut{121, 0x1B00}, m_names[0]);
  item("Show")->setWidth(item("Show")->property("minimumWidth").toDouble());
  m_view.grabWindow();

  auto* text = item("Show")->findChild<QQuickItem*>("RecorderText");

  EXPECT_EQ(text->property("text").toString(), "Ctrl+Alt+Shift+Super+Page Down");
  EXPECT_TRUE(text->property("truncated").toBool());
  EXPECT_LE(text->mapToItem(item("Show"), QPointF(text->width(), 0)).x(),
            item("Show")->findChild<QQuickItem*>("RecorderClearButton")->x());
}

}  // namespace
