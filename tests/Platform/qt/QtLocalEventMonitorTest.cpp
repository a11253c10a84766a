#include "Platform/qt/QtLocalEventMonitor.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QWindow>
#include <vector>

namespace {

using quillmonger::KeyEvent;
using Disposition = quillmonger::LocalEventMonitoring::Disposition;

constexpr quint32 x11Keycode(quint32 evdevKey) { return evdevKey + 8; }

// A window that counts the keys that reach it.
class KeyWindow final : public QWindow {
 public:
  int presses = 0;
  QObject* focused = nullptr;

  [[nodiscard]] QObject* focusObject() const override { return focused; }

 private:
  void keyPressEvent(QKeyEvent* /*event*/) override { ++presses; }
};

class QtLocalEventMonitor : public testing::Test {
 protected:
  void send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, quint32 evdevKey, bool isRepeat = false) {
    QKeyEvent event(type, key, modifiers, x11Keycode(evdevKey), 0, 0, QString(), isRepeat);
    QCoreApplication::sendEvent(&m_window, &event);
  }
  foundation::Subscription addMonitor(Disposition disposition) {
    return m_monitor.addLocalMonitor([this, disposition](const KeyEvent& event) {
      m_seen.push_back(event);
      return disposition;
    });
  }

  KeyWindow m_window;
  platform::QtLocalEventMonitor m_monitor;
  std::vector<KeyEvent> m_seen;
};

TEST_F(QtLocalEventMonitor, TellsTheKeyByItsPosition) {
  const auto monitor = addMonitor(Disposition::pass);

  send(QEvent::KeyPress, Qt::Key_Apostrophe, Qt::ControlModifier, 5);  // the fourth digit key under a French layout

  ASSERT_EQ(m_seen.size(), 1U);
  EXPECT_EQ(m_seen[0].type, KeyEvent::Type::keyDown);
  EXPECT_EQ(m_seen[0].keyCode, 21);
  EXPECT_EQ(m_seen[0].modifierFlags, quillmonger::commandFlag);
  EXPECT_EQ(m_window.presses, 1);
}

TEST_F(QtLocalEventMonitor, KeepsASwallowedKeyFromTheWindow) {
  const auto monitor = addMonitor(Disposition::swallow);

  send(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, 108);

  EXPECT_EQ(m_seen.size(), 1U);
  EXPECT_EQ(m_window.presses, 0);
}

TEST_F(QtLocalEventMonitor, AsksInOrderUntilOneSwallows) {
  const auto first = addMonitor(Disposition::pass);
  const auto second = addMonitor(Disposition::swallow);
  const auto third = addMonitor(Disposition::pass);

  send(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, 108);

  EXPECT_EQ(m_seen.size(), 2U);
}

TEST_F(QtLocalEventMonitor, TellsBothEdgesOfLeftAltAsChangedFlags) {
  const auto monitor = addMonitor(Disposition::pass);

  send(QEvent::KeyPress, Qt::Key_Alt, Qt::NoModifier, 56);
  send(QEvent::KeyRelease, Qt::Key_Alt, Qt::AltModifier, 56);

  ASSERT_EQ(m_seen.size(), 2U);
  EXPECT_EQ(m_seen[0].type, KeyEvent::Type::flagsChanged);
  EXPECT_EQ(m_seen[0].keyCode, 58);
  EXPECT_EQ(m_seen[0].modifierFlags, quillmonger::optionFlag);
  EXPECT_EQ(m_seen[1].modifierFlags, 0U);
}

TEST_F(QtLocalEventMonitor, KnowsLeftAltUnderShiftToo) {
  const auto monitor = addMonitor(Disposition::pass);

  send(QEvent::KeyPress, Qt::Key_Meta, Qt::ShiftModifier, 56);

  ASSERT_EQ(m_seen.size(), 1U);
  EXPECT_EQ(m_seen[0].modifierFlags, quillmonger::optionFlag | quillmonger::shiftFlag);
}

TEST_F(QtLocalEventMonitor, PassesARepeatedKeyAsAnotherPress) {
  const auto monitor = addMonitor(Disposition::pass);

  send(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, 108);
  send(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, 108, true);

  EXPECT_EQ(m_seen.size(), 2U);
}

TEST_F(QtLocalEventMonitor, SaysNothingOfReleasesAndUnknownKeys) {
  const auto monitor = addMonitor(Disposition::swallow);

  send(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, 30);
  send(QEvent::KeyPress, Qt::Key_LaunchMail, Qt::NoModifier, 200);

  EXPECT_TRUE(m_seen.empty());
}

TEST_F(QtLocalEventMonitor, EndsWithItsHold) {
  { const auto monitor = addMonitor(Disposition::swallow); }

  send(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, 108);

  EXPECT_TRUE(m_seen.empty());
  EXPECT_EQ(m_window.presses, 1);
}

TEST_F(QtLocalEventMonitor, LeavesTheKeysOfAModalWindowToIt) {
  const auto monitor = addMonitor(Disposition::swallow);
  m_window.setModality(Qt::WindowModal);

  send(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, 28);

  EXPECT_TRUE(m_seen.empty());
  EXPECT_EQ(m_window.presses, 1);
}

TEST_F(QtLocalEventMonitor, LeavesAKeyToTheFocusedItemThatNamesItAsItsOwn) {
  const auto monitor = addMonitor(Disposition::swallow);
  QObject list;
  list.setProperty("ownKeys", QVariantList{int(Qt::Key_Up), int(Qt::Key_Down)});
  m_window.focused = &list;

  send(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, 108);
  EXPECT_EQ(m_window.presses, 1);
  send(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, 1);
  EXPECT_EQ(m_window.presses, 1);
  EXPECT_EQ(m_seen.size(), 1U);
}

TEST_F(QtLocalEventMonitor, LeavesAKeyToTheItemAroundTheFocusedOne) {
  const auto monitor = addMonitor(Disposition::swallow);
  QObject dialog;
  dialog.setProperty("ownKeys", QVariantList{int(Qt::Key_Escape)});
  QObject button;
  button.setProperty("parent", QVariant::fromValue(&dialog));
  m_window.focused = &button;

  send(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, 1);
  EXPECT_EQ(m_window.presses, 1);
  send(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, 28);
  EXPECT_EQ(m_window.presses, 1);
}

}  // namespace
