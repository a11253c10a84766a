#include "Platform/qt/QtQuickWindow.h"

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <QTemporaryFile>
#include <QTest>
#include <cstdint>
#include <optional>
#include <vector>

#include "Platform/qt/QtApplication.h"
#include "Platform/qt/QuickView.h"

namespace {

using platform::QtQuickWindow;

class FakeWindowSystem final : public quillmonger::WindowSystem {
 public:
  [[nodiscard]] bool blendsTransparency() const override { return isBlending; }
  [[nodiscard]] std::optional<Pixel> focusedWindowCentre() const override { return focused; }
  void keepOutOfTaskList(WindowId /*window*/) override { ++keptOutCount; }
  void bringToFront(WindowId /*window*/) override { ++frontCount; }

  bool isBlending = true;
  std::optional<Pixel> focused;
  int keptOutCount = 0;
  int frontCount = 0;
};

class QtQuickWindowTest : public testing::Test {
 protected:
  QtQuickWindowTest() : m_window(description(), m_system) {}

  QtQuickWindow::Description description() {
    m_file.open();
    m_file.write("import QtQuick\nItem { required property string words; property bool blendsTransparency }");
    m_file.close();
    return {QtQuickWindow::Kind::palette, QSize(300, 200), QStringLiteral("Title"),
            [this] {
              ++m_contentCount;
              return QtQuickWindow::Content{QUrl::fromLocalFile(m_file.fileName()), {{"words", "hello"}}};
            },
            [this]() -> QQmlEngine& { return m_engine; }};
  }

  QTemporaryFile m_file{QDir::tempPath() + QStringLiteral("/XXXXXX.qml")};
  QQmlEngine m_engine;
  FakeWindowSystem m_system;
  int m_contentCount = 0;
  QtQuickWindow m_window;
};

TEST_F(QtQuickWindowTest, IsNotLoadedBeforeItIsNeeded) {
  EXPECT_FALSE(m_window.isVisible());
  m_window.orderOut();

  EXPECT_EQ(m_contentCount, 0);
}

TEST_F(QtQuickWindowTest, LoadsItsContentOnceWithItsProperties) {
  m_window.prepare();
  m_window.makeKeyAndOrderFront();

  EXPECT_EQ(m_contentCount, 1);
  EXPECT_EQ(m_window.view()->rootObject()->property("words").toString(), "hello");
}

TEST_F(QtQuickWindowTest, AsksForTheFrontAtOnceAndAgainWhenItIsOnTheScreen) {
  m_window.makeKeyAndOrderFront();
  EXPECT_GE(m_system.frontCount, 1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return m_system.frontCount == 2; }));
  EXPECT_TRUE(m_window.isVisible());

  m_window.orderOut();
  EXPECT_FALSE(m_window.isVisible());
  m_window.makeKeyAndOrderFront();

  EXPECT_GE(m_system.frontCount, 3);
  EXPECT_TRUE(QTest::qWaitFor([this] { return m_system.frontCount == 4; }));
  EXPECT_EQ(m_system.keptOutCount, 2);
}

TEST_F(QtQuickWindowTest, TellsItsContentWhetherTransparencyIsBlended) {
  m_system.isBlending = false;
  m_window.makeKeyAndOrderFront();
  EXPECT_FALSE(m_window.view()->rootObject()->property("blendsTransparency").toBool());

  m_system.isBlending = true;
  m_window.makeKeyAndOrderFront();
  EXPECT_TRUE(m_window.view()->rootObject()->property("blendsTransparency").toBool());
}

TEST_F(QtQuickWindowTest, TellsItsFrameBeforeItIsLoaded) {
  EXPECT_EQ(m_window.frame(), (quillmonger::WindowFrame{0, 200, 300, 200}));
  EXPECT_EQ(m_window.level(), 3);
}

TEST_F(QtQuickWindowTest, StandsWhereItsFrameIsSet) {
  m_window.setFrame({40.4, 300, 310, 210});

  EXPECT_EQ(m_window.view()->geometry(), QRect(40, 90, 310, 210));
  EXPECT_EQ(m_window.frame(), (quillmonger::WindowFrame{40, 300, 310, 210}));
}

TEST_F(QtQuickWindowTest, APaletteIsOfFixedSizeSoThatNoWindowManagerTilesIt) {
  m_window.prepare();
  EXPECT_EQ(m_window.view()->minimumSize(), QSize(300, 200));
  EXPECT_EQ(m_window.view()->maximumSize(), QSize(300, 200));

  for (const QSize size : {QSize(310, 210), QSize(290, 190)}) {
    m_window.setFrame({40, 300, static_cast<double>(size.width()), static_cast<double>(size.height())});

    EXPECT_EQ(m_window.view()->minimumSize(), size);
    EXPECT_EQ(m_window.view()->maximumSize(), size);
    EXPECT_EQ(m_window.view()->size(), size);
  }
}

TEST_F(QtQuickWindowTest, StandsBehindTheFrontWithoutAskingForIt) {
  m_window.setLevel(2);

  m_window.orderFront();
  QCoreApplication::processEvents();

  EXPECT_TRUE(m_window.isVisible());
  EXPECT_EQ(m_window.level(), 2);
  EXPECT_EQ(m_system.frontCount, 0);
  EXPECT_EQ(m_system.keptOutCount, 1);
}

TEST_F(QtQuickWindowTest, NeverTakesTheKeyboardAsACompanion) {
  auto companion = description();
  companion.kind = QtQuickWindow::Kind::companion;
  QtQuickWindow window(companion, m_system);

  window.orderFront();

  EXPECT_TRUE(window.view()->flags().testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_EQ(window.view()->flags() & ~Qt::WindowDoesNotAcceptFocus, [this] {
    m_window.prepare();
    return m_window.view()->flags();
  }());
}

TEST_F(QtQuickWindowTest, IsNoWiderThanACompanionsContentWhateverItsFrame) {
  QTemporaryFile file(QDir::tempPath() + QStringLiteral("/XXXXXX.qml"));
  file.open();
  file.write("import QtQuick\nItem { implicitWidth: 120; property bool blendsTransparency }");
  file.close();
  auto companion = description();
  companion.kind = QtQuickWindow::Kind::companion;
  companion.content = [&file] { return QtQuickWindow::Content{QUrl::fromLocalFile(file.fileName()), {}}; };
  QtQuickWindow window(companion, m_system);
  EXPECT_EQ(window.frame(), (quillmonger::WindowFrame{0, 200, 300, 200}));

  window.setFrame({40, 300, 310, 210});

  EXPECT_EQ(window.paneWidth(), 120);
  EXPECT_EQ(window.frame(), (quillmonger::WindowFrame{40, 300, 310, 210}));
  EXPECT_EQ(window.view()->geometry(), QRect(40, 90, 120, 210));
}

TEST_F(QtQuickWindowTest, MakesRoomAtItsRightOnlyWhereItIsMissing) {
  m_window.center();
  const QRect screen = m_window.view()->screen()->availableGeometry();
  const int centred = m_window.view()->x();

  m_window.makeRoomAtRight(50);
  EXPECT_EQ(m_window.view()->x(), centred);
  m_window.makeRoomAtRight(screen.width() - 310);
  EXPECT_EQ(m_window.view()->x(), screen.x() + 10);
  m_window.makeRoomAtRight(screen.width());
  EXPECT_EQ(m_window.view()->x(), screen.x()) << "and never leaves the screen itself";
}

TEST_F(QtQuickWindowTest, LetsGoOfItsTreeWhenItIsUnloaded) {
  m_window.makeKeyAndOrderFront();
  const QPointer<QQuickItem> content = m_window.view()->rootObject();

  m_window.unload();

  EXPECT_TRUE(content.isNull());
  EXPECT_FALSE(m_window.isVisible());
}

TEST_F(QtQuickWindowTest, StandsInTheMiddleAndALittleAbove) {
  m_window.center();

  const QRect screen = m_window.view()->screen()->availableGeometry();
  const QRect window = m_window.view()->geometry();
  EXPECT_NEAR(window.center().x(), screen.center().x(), 1);
  EXPECT_LT(window.center().y(), screen.center().y());
  EXPECT_GT(window.top(), screen.top());
}

TEST_F(QtQuickWindowTest, GoesWhenTheApplicationHides) {
  platform::QtApplication application(m_system);
  m_window.makeKeyAndOrderFront();

  application.hide();

  EXPECT_FALSE(m_window.isVisible());
}

TEST_F(QtQuickWindowTest, IsAsLargeAsItsContentWantsToBeWhenNoSizeIsGiven) {
  QTemporaryFile file(QDir::tempPath() + QStringLiteral("/XXXXXX.qml"));
  file.open();
  file.write(
      "import QtQuick\nItem { implicitWidth: 480; implicitHeight: rows.height; Column { id: rows; Item { width: 9; "
      "height: 240 } } }");
  file.close();
  QtQuickWindow window({QtQuickWindow::Kind::dialog, QSize(), QStringLiteral("Title"),
                        [&file] {
                          return QtQuickWindow::Content{QUrl::fromLocalFile(file.fileName()), {}};
                        },
                        [this]() -> QQmlEngine& { return m_engine; }},
                       m_system);

  window.prepare();

  EXPECT_EQ(window.view()->size(), QSize(480, 240));
  EXPECT_EQ(window.view()->maximumSize(), QSize(480, 240));
  EXPECT_EQ(window.view()->rootObject()->height(), 240);
}

TEST_F(QtQuickWindowTest, APlainWindowHasNoFrameTheOrdinaryLevelAndMayGrow) {
  auto plain = description();
  plain.kind = QtQuickWindow::Kind::plain;
  QtQuickWindow window(plain, m_system);

  window.makeKeyAndOrderFront();

  EXPECT_EQ(window.level(), 0);
  EXPECT_EQ(m_system.keptOutCount, 0);
  EXPECT_TRUE(window.view()->flags().testFlag(Qt::FramelessWindowHint));
  EXPECT_FALSE(window.view()->flags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_EQ(window.view()->minimumSize(), QSize(300, 200));
  EXPECT_GT(window.view()->maximumSize().width(), 300);
  EXPECT_EQ(window.view()->rootObject()->property("blendsTransparency").toBool(), m_system.blendsTransparency());
}

TEST_F(QtQuickWindowTest, HoldsTheFrontWhileAnotherOfItsWindowsComesThere) {
  platform::QtApplication application(m_system);
  int resignedCount = 0;
  const auto hold = application.onDidResignActive([&resignedCount] { ++resignedCount; });
  emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);

  m_window.makeKeyAndOrderFront();
  m_window.view()->setProperty(platform::awaitsFrontProperty, true);
  emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
  EXPECT_EQ(resignedCount, 0);

  emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
  QFocusEvent arrival(QEvent::FocusIn);
  QCoreApplication::sendEvent(m_window.view(), &arrival);
  emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
  EXPECT_EQ(resignedCount, 1);
}

// As the display tells of the focus.
void tellFocus(int type, int detail) {
  xcb_focus_in_event_t event{};
  event.response_type = static_cast<std::uint8_t>(type);
  event.detail = static_cast<std::uint8_t>(detail);
  QAbstractEventDispatcher::instance()->filterNativeEvent("xcb_generic_event_t", &event, nullptr);
}

TEST_F(QtQuickWindowTest, HoldsTheFrontWhenItsLossIsToldAfterTheFocusHasComeBack) {
  platform::QtApplication application(m_system);
  int resignedCount = 0;
  const auto hold = application.onDidResignActive([&resignedCount] { ++resignedCount; });
  emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);

  tellFocus(XCB_FOCUS_OUT, XCB_NOTIFY_DETAIL_NONLINEAR);
  tellFocus(XCB_FOCUS_IN, XCB_NOTIFY_DETAIL_NONLINEAR);
  emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
  emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
  EXPECT_EQ(resignedCount, 0);

  tellFocus(XCB_FOCUS_OUT, XCB_NOTIFY_DETAIL_NONLINEAR);
  tellFocus(XCB_FOCUS_IN, XCB_NOTIFY_DETAIL_POINTER);
  emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
  EXPECT_EQ(resignedCount, 1) << "the pointer is in the window, and the focus is not";
}

}  // namespace
