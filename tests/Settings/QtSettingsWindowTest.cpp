#include "Settings/view/QtSettingsWindow.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryFile>
#include <QTest>
#include <memory>

#include "Settings/view/QmlModule.h"
#include "Settings/view/QmlPaneView.h"
#include "Settings/view/SettingsModel.h"
#include "tests/support/TestDefaults.h"

namespace {

using settings::Frame;
using settings::Style;
using Controller = settings::SettingsWindowController;

constexpr auto paneSource = R"(
import QtQuick
import Settings
Container {
    id: pane
    required property string name
    contentWidth: name === "first" ? 300 : 400
    objectName: name
    readonly property QtObject theme: QtObject { readonly property int size: 3 }
    Section { label: "A"; Item { implicitWidth: 10; implicitHeight: pane.name === "first" ? 100 : 150 } }
    Section {
        label: "A longer label"
        FocusScope {
            id: button
            objectName: "button"
            implicitWidth: 40; implicitHeight: 20
            activeFocusOnTab: true
            property int presses: 0
            Keys.onSpacePressed: ++presses
            readonly property QtObject theme: pane.theme
            Repeater {
                model: 2
                Item { id: row; readonly property QtObject theme: button.theme; implicitWidth: theme.size }
            }
        }
    }
})";

QQuickItem* find(QQuickItem* item, const char* name) {
  if (item->objectName() == QLatin1String(name)) return item;
  for (QQuickItem* child : item->childItems()) {
    if (auto* const found = find(child, name)) return found;
  }
  return nullptr;
}

// The window's real view, on no display.
class QtSettingsWindow : public testing::Test {
 protected:
  QtSettingsWindow() {
    settings::registerTypes();
    m_file.open();
    m_file.write(paneSource);
    m_file.close();
  }

  void make(Style style = Style::toolbarItems, int panes = 3) {
    m_controller = std::make_unique<Controller>(m_window, makePanes(panes), style,
                                                settings::SettingsTabViewController::Animation::on,
                                                Controller::SingleItemToolbar::hidden, "Program Settings");
    m_model = std::make_unique<settings::SettingsModel>(*m_controller, m_window.size());
  }
  std::vector<settings::Pane> makePanes(int count) {
    std::vector<settings::Pane> panes;
    for (const char* name : {"first", "second", "third"}) {
      if (static_cast<int>(panes.size()) == count) break;
      panes.push_back({{name}, std::string("The ") + name, {"image://picture/icon", "Icon"}, makeView(name)});
    }
    return panes;
  }
  std::unique_ptr<settings::PaneView> makeView(const char* name) {
    return std::make_unique<settings::QmlPaneView>([this]() -> QQuickItem& { return m_window.paneArea(); },
                                                   QUrl::fromLocalFile(m_file.fileName()),
                                                   [name] {
                                                     return QVariantMap{{"name", QString::fromLatin1(name)}};
                                                   });
  }
  QQuickView& view() {
    if (!m_view) {
      m_view = std::make_unique<QQuickView>(&m_engine, nullptr);
      m_view->setInitialProperties({{"model", QVariant::fromValue(m_model.get())}});
      m_view->setSource(QUrl("qrc:/qt-project.org/imports/Settings/SettingsView.qml"));
    }
    return *m_view;
  }
  void activate() {
    view().show();
    view().requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view()));
  }
  QQuickItem* item(const char* name) { return find(view().rootObject(), name); }
  void click(QQuickItem* on) {
    QTest::mouseClick(&view(), Qt::LeftButton, {}, on->mapToScene(on->boundingRect().center()).toPoint());
  }

  testsupport::TestDefaults m_defaults;
  bool m_reducesMotion = true;
  QTemporaryFile m_file{QDir::tempPath() + QStringLiteral("/XXXXXX.qml")};
  QQmlEngine m_engine;
  settings::QtSettingsWindow m_window{{[this]() -> QQuickView& { return view(); },
                                       [this] { view().setPosition(200, 100); }, [this] { activate(); },
                                       [this] { return m_reducesMotion; }, m_defaults.suite}};
  std::unique_ptr<Controller> m_controller;
  std::unique_ptr<settings::SettingsModel> m_model;
  std::unique_ptr<QQuickView> m_view;
};

TEST_F(QtSettingsWindow, IsAsLargeAsThePaneAndItsToolbar) {
  make();
  m_controller->show();
  const double toolbar = item("SettingsToolbar")->height();

  EXPECT_EQ(view().width(), 360);
  EXPECT_EQ(view().height(), item("first")->implicitHeight() + toolbar);
  EXPECT_EQ(view().title(), "The first");
  EXPECT_TRUE(item("first")->isVisible());
}

TEST_F(QtSettingsWindow, HasItsSizeBeforeItsFirstFrame) {
  make();
  m_controller->tabViewController().restoreInitialTab();
  const settings::Size atOnce = m_window.size().value();

  view().grabWindow();
  QCoreApplication::processEvents();

  EXPECT_GT(atOnce.height, 150);
  EXPECT_EQ(m_window.size().value(), atOnce);
}

TEST_F(QtSettingsWindow, ShowsThePaneOfAnItemThatIsClicked) {
  make();
  m_controller->show();
  const QPoint place = view().position();

  click(item("ToolbarItem-second"));

  EXPECT_EQ(view().title(), "The second");
  EXPECT_EQ(view().width(), 460);
  EXPECT_EQ(view().position(), place);
  EXPECT_FALSE(item("first")->isVisible());
  EXPECT_TRUE(item("second")->isVisible());
}

TEST_F(QtSettingsWindow, GoesFromPaneToPaneWithTheArrowsInTheToolbar) {
  make();
  m_controller->show();
  item("SettingsToolbar")->forceActiveFocus();

  QTest::keyClick(&view(), Qt::Key_Right);
  EXPECT_EQ(view().title(), "The second");
  QTest::keyClick(&view(), Qt::Key_Right);
  QTest::keyClick(&view(), Qt::Key_Right);
  EXPECT_EQ(view().title(), "The third") << "and stops at the end";
  QTest::keyClick(&view(), Qt::Key_Left);
  EXPECT_EQ(view().title(), "The second");
}

TEST_F(QtSettingsWindow, GoesFromPaneToPaneWithControlAndPageKeysFromEverywhere) {
  make();
  m_controller->show();
  item("button")->forceActiveFocus();

  QTest::keyClick(&view(), Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(view().title(), "The third");
  QTest::keyClick(&view(), Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(view().title(), "The first");
}

TEST_F(QtSettingsWindow, GoesFromTheToolbarIntoThePaneWithTab) {
  make();
  m_controller->show();

  QTest::keyClick(&view(), Qt::Key_Tab);
  EXPECT_TRUE(item("SettingsToolbar")->hasActiveFocus());
  QTest::keyClick(&view(), Qt::Key_Tab);

  EXPECT_TRUE(item("first")->findChild<QQuickItem*>("button")->hasActiveFocus());
}

TEST_F(QtSettingsWindow, TakesTheKeyboardFromAPaneThatIsHidden) {
  make();
  m_controller->show();
  auto* button = item("first")->findChild<QQuickItem*>("button");
  button->forceActiveFocus();

  m_controller->tabViewController().activateTab(1);
  QTest::keyClick(&view(), Qt::Key_Space);

  EXPECT_FALSE(button->hasActiveFocus());
  EXPECT_EQ(button->property("presses"), 0);
}

TEST_F(QtSettingsWindow, FadesFromOnePaneToTheOtherAndHoldsInputBackMeanwhile) {
  make();
  m_controller->show();
  m_reducesMotion = false;

  click(item("ToolbarItem-second"));
  EXPECT_TRUE(item("first")->isVisible()) << "on its way";
  click(item("ToolbarItem-third"));
  EXPECT_EQ(view().title(), "The second") << "held back";

  ASSERT_TRUE(QTest::qWaitFor([this] { return !item("first")->isVisible(); }));
  EXPECT_EQ(item("second")->opacity(), 1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return view().width() == 460; }));
  click(item("ToolbarItem-third"));
  EXPECT_EQ(view().title(), "The third");
}

TEST_F(QtSettingsWindow, AlignsAllSectionsOfAPaneOnTheWidestLabel) {
  make();
  m_controller->show();

  const auto labels = item("first")->findChildren<QQuickItem*>("SectionLabel");
  ASSERT_EQ(labels.size(), 2);
  EXPECT_EQ(labels[0]->width(), labels[1]->width());
  EXPECT_GE(labels[1]->width(), labels[1]->implicitWidth());
}

TEST_F(QtSettingsWindow, HasSegmentsOfEqualWidth) {
  make(Style::segmentedControl);
  m_controller->show();

  EXPECT_NE(item("toolbarSegmentedControl"), nullptr);
  EXPECT_NE(item("toolbarSegmentedControlItem"), nullptr);
  EXPECT_EQ(item("segment-0")->width(), item("segment-2")->width());
  click(item("segment-1"));
  EXPECT_EQ(view().title(), "The second");
}

TEST_F(QtSettingsWindow, HasNoToolbarForASinglePane) {
  make(Style::toolbarItems, 1);
  m_controller->show();

  EXPECT_FALSE(item("SettingsToolbar")->isVisible());
  EXPECT_EQ(view().height(), item("first")->implicitHeight());
}

TEST_F(QtSettingsWindow, ComesBackWhereItWasMovedTo) {
  make();
  m_controller->show();
  EXPECT_EQ(view().position(), QPoint(200, 100)) << "centred the first time";

  view().setPosition(33, 44);
  QCoreApplication::processEvents();
  view().hide();
  m_controller->show();

  EXPECT_EQ(view().position(), QPoint(33, 44));
}

TEST_F(QtSettingsWindow, ComesBackWhereItWasMovedToWithAnotherPaneAndMotionOn) {
  m_reducesMotion = false;
  make();
  m_controller->show({{"first"}});
  view().setPosition(33, 44);
  QCoreApplication::processEvents();
  view().hide();
  m_defaults.suite.setObject(Controller::frameAutosaveName, std::string("55 66 360 200"));

  m_controller->show({{"second"}});

  EXPECT_EQ(view().position(), QPoint(55, 66));
  EXPECT_TRUE(QTest::qWaitFor([this] { return view().width() == 460; }));
  EXPECT_FALSE(item("first")->isVisible()) << "swapped at once";
  EXPECT_EQ(item("second")->opacity(), 1);
  m_window.endAnimation();
  EXPECT_EQ(view().position(), QPoint(55, 66));
}

TEST_F(QtSettingsWindow, ComesBackWhereItWasMovedToAlsoWhenItWasLoadedAnewMeanwhile) {
  make();
  m_controller->show();
  m_view.reset();
  m_controller->show();

  view().setPosition(33, 44);
  QCoreApplication::processEvents();
  view().hide();
  m_view.reset();
  m_controller->show();

  EXPECT_EQ(view().position(), QPoint(33, 44));
}

TEST_F(QtSettingsWindow, StaysWhereItIsWhenItIsShownAgainOnTheScreen) {
  make();
  m_controller->show();
  view().setPosition(33, 44);

  m_controller->show();

  EXPECT_EQ(view().position(), QPoint(33, 44));
}

TEST_F(QtSettingsWindow, ForgetsAPlaceWhereNoScreenIs) {
  m_defaults.suite.setObject(Controller::frameAutosaveName, std::string("9000 9000 100 100"));
  make();

  m_controller->show();

  EXPECT_EQ(view().position(), QPoint(200, 100));
}

int messageCount = 0;

TEST_F(QtSettingsWindow, GoesWithoutAWord) {
  make();
  m_controller->show();
  messageCount = 0;
  const auto before = qInstallMessageHandler([](auto, const auto&, const auto&) { ++messageCount; });

  m_view.reset();
  qInstallMessageHandler(before);

  EXPECT_EQ(messageCount, 0);
}

TEST_F(QtSettingsWindow, KeepsItsTreeWhenItIsClosed) {
  make();
  m_controller->show({{"second"}});

  view().close();
  m_controller->show();

  EXPECT_EQ(view().title(), "The second");
  EXPECT_TRUE(item("second")->isVisible());
}

}  // namespace
