#include "Platform/qt/QtRecordedEvents.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTest>
#include <QWindow>
#include <memory>
#include <vector>

#include "Platform/qt/QtLocalEventMonitor.h"

namespace {

using keyboardshortcuts::Event;
using Disposition = keyboardshortcuts::RecordedEvents::Disposition;

constexpr quint32 evdevA = 30;
constexpr quint32 evdevEscape = 1;
constexpr quint32 evdevLeftShift = 42;
constexpr quint32 evdevUnknown = 700;

// A window that counts what reaches it.
class CountingWindow final : public QWindow {
 public:
  int presses = 0;
  int releases = 0;
  int mouseReleases = 0;

 private:
  void keyPressEvent(QKeyEvent* /*event*/) override { ++presses; }
  void keyReleaseEvent(QKeyEvent* /*event*/) override { ++releases; }
  void mouseReleaseEvent(QMouseEvent* /*event*/) override { ++mouseReleases; }
};

enum class Repeat { no, yes };

class QtRecordedEvents : public testing::Test {
 protected:
  QtRecordedEvents() {
    m_window.show();
    m_window.requestActivate();
    m_isReady = QTest::qWaitForWindowActive(&m_window);
  }
  void SetUp() override { ASSERT_TRUE(m_isReady); }

  void send(QEvent::Type type, quint32 evdevKey, Qt::KeyboardModifiers modifiers = {}, Repeat repeat = Repeat::no,
            QWindow* window = nullptr) {
    QKeyEvent event(type, Qt::Key_unknown, modifiers, evdevKey + 8, 0, 0, QString(), repeat == Repeat::yes);
    event.setTimestamp(m_time);
    QCoreApplication::sendEvent(window == nullptr ? &m_window : window, &event);
  }
  void press(quint32 evdevKey, Qt::KeyboardModifiers modifiers = {}) {
    ++m_time;
    send(QEvent::KeyPress, evdevKey, modifiers);
  }
  void release(quint32 evdevKey) {
    ++m_time;
    send(QEvent::KeyRelease, evdevKey);
  }
  void repeat(quint32 evdevKey) {
    send(QEvent::KeyRelease, evdevKey, {}, Repeat::yes);
    send(QEvent::KeyPress, evdevKey, {}, Repeat::yes);
  }
  void releaseMouse(Qt::MouseButton button, QPointF place) {
    QMouseEvent event(QEvent::MouseButtonRelease, place, place, button, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&m_window, &event);
  }
  void watch(Disposition disposition) {
    m_watch = m_events->watch([this, disposition](const Event& event) {
      m_seen.push_back(event);
      return disposition;
    });
  }
  // As a recorder that has its chord.
  void watchOneKey() {
    m_watch = m_events->watch([this](const Event& event) {
      m_seen.push_back(event);
      m_watch.cancel();
      return Disposition::swallow;
    });
  }

  quint64 m_time = 1;
  CountingWindow m_window;
  bool m_isReady = false;
  std::vector<Event> m_seen;
  std::unique_ptr<platform::QtRecordedEvents> m_events = std::make_unique<platform::QtRecordedEvents>();
  foundation::Subscription m_watch;
};

TEST_F(QtRecordedEvents, TellAKeyByItsPositionAndSuperAsCommand) {
  watch(Disposition::swallow);

  press(evdevA, Qt::MetaModifier | Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier);

  ASSERT_EQ(m_seen.size(), 1U);
  EXPECT_EQ(m_seen[0].type, Event::Type::keyDown);
  EXPECT_EQ(m_seen[0].keyCode, 0);
  EXPECT_EQ(m_seen[0].modifierFlags, 0x1E0000U);
  EXPECT_EQ(m_window.presses, 0);
}

TEST_F(QtRecordedEvents, TellAKeyOfNoKnownPlaceWithoutOne) {
  watch(Disposition::swallow);

  press(evdevUnknown);

  ASSERT_EQ(m_seen.size(), 1U);
  EXPECT_EQ(m_seen[0].keyCode, std::nullopt);
}

TEST_F(QtRecordedEvents, LetThroughWhatIsNotSwallowed) {
  watch(Disposition::pass);

  press(evdevA);
  release(evdevA);

  EXPECT_EQ(m_window.presses, 1);
  EXPECT_EQ(m_window.releases, 1);
}

TEST_F(QtRecordedEvents, TellNoModifier) {
  watch(Disposition::swallow);

  press(evdevLeftShift);

  EXPECT_TRUE(m_seen.empty());
  EXPECT_EQ(m_window.presses, 1);
}

TEST_F(QtRecordedEvents, TellAKeyThatIsHeldOnce) {
  watch(Disposition::swallow);

  press(evdevA);
  repeat(evdevA);
  repeat(evdevA);
  release(evdevA);

  EXPECT_EQ(m_seen.size(), 1U);
  EXPECT_EQ(m_window.presses, 0);
  EXPECT_EQ(m_window.releases, 0);
}

TEST_F(QtRecordedEvents, KeepTheLastKeyFromTheWindowUntilItIsUp) {
  watchOneKey();

  press(evdevEscape);
  repeat(evdevEscape);
  release(evdevEscape);
  EXPECT_EQ(m_window.presses, 0);
  EXPECT_EQ(m_window.releases, 0);

  press(evdevEscape);
  EXPECT_EQ(m_window.presses, 1);
  EXPECT_EQ(m_seen.size(), 1U);
}

TEST_F(QtRecordedEvents, KnowARepeatThatTheToolkitTakesForAPressOfItsOwn) {
  watch(Disposition::swallow);
  press(evdevA);

  release(evdevA);
  send(QEvent::KeyPress, evdevA);  // of the same moment
  EXPECT_EQ(m_seen.size(), 1U);

  release(evdevA);
  press(evdevA);
  EXPECT_EQ(m_seen.size(), 2U);
}

TEST_F(QtRecordedEvents, AreSeenBeforeEveryOtherFilter) {
  platform::QtLocalEventMonitor monitor;
  int told = 0;
  const auto other = monitor.addLocalMonitor([&told](const auto&) {
    ++told;
    return quillmonger::LocalEventMonitoring::Disposition::swallow;
  });
  watch(Disposition::swallow);

  press(evdevEscape);

  EXPECT_EQ(m_seen.size(), 1U);
  EXPECT_EQ(told, 0);
}

TEST_F(QtRecordedEvents, RunNoShortcutOfAnItem) {
  watch(Disposition::swallow);
  QObject item;
  QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_P, Qt::ControlModifier);
  override.ignore();

  QCoreApplication::sendEvent(&item, &override);

  EXPECT_TRUE(override.isAccepted());
}

TEST_F(QtRecordedEvents, TellNothingOfAnotherWindow) {
  CountingWindow other;
  watch(Disposition::swallow);

  send(QEvent::KeyPress, evdevA, {}, Repeat::no, &other);

  EXPECT_TRUE(m_seen.empty());
  EXPECT_EQ(other.presses, 1);
}

TEST_F(QtRecordedEvents, TellWhereTheMouseIsReleased) {
  watch(Disposition::pass);

  releaseMouse(Qt::LeftButton, {20, 30});
  releaseMouse(Qt::RightButton, {40, 50});
  releaseMouse(Qt::MiddleButton, {60, 70});

  ASSERT_EQ(m_seen.size(), 2U);
  EXPECT_EQ(m_seen[0].type, Event::Type::leftMouseUp);
  EXPECT_EQ(m_seen[0].location.x, 20);
  EXPECT_EQ(m_seen[0].location.y, 30);
  EXPECT_EQ(m_seen[1].type, Event::Type::rightMouseUp);
  EXPECT_EQ(m_window.mouseReleases, 3);
}

TEST_F(QtRecordedEvents, TellNothingOnceTheWatchIsOver) {
  watch(Disposition::swallow);

  m_watch.cancel();
  press(evdevA);
  releaseMouse(Qt::LeftButton, {1, 1});

  EXPECT_TRUE(m_seen.empty());
  EXPECT_EQ(m_window.presses, 1);
}

TEST_F(QtRecordedEvents, LetGoOfAHeldKeyWhenTheWindowLosesTheKeyboard) {
  watchOneKey();
  press(evdevA);

  QFocusEvent lost(QEvent::FocusOut);
  QCoreApplication::sendEvent(&m_window, &lost);
  press(evdevEscape);

  EXPECT_EQ(m_window.presses, 1);
}

TEST_F(QtRecordedEvents, LetGoOfAHeldKeyWhenAQuestionTakesTheWindowsInput) {
  watchOneKey();
  press(evdevA);

  QEvent blocked(QEvent::WindowBlocked);
  QCoreApplication::sendEvent(&m_window, &blocked);
  press(evdevEscape);

  EXPECT_EQ(m_window.presses, 1);
}

TEST_F(QtRecordedEvents, MayGoBeforeTheirWatch) {
  watch(Disposition::swallow);

  m_events.reset();
  press(evdevA);
  m_watch.cancel();

  EXPECT_EQ(m_window.presses, 1);
}

}  // namespace
