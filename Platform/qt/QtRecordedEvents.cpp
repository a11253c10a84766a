#include "Platform/qt/QtRecordedEvents.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <chrono>
#include <utility>

#include "Platform/keyboard/KeyCodeTable.h"

namespace platform {

namespace {

using keyboardshortcuts::Event;

// As chords have them: Command is the Super key there.
std::uint32_t flags(Qt::KeyboardModifiers modifiers) {
  std::uint32_t flags = 0;
  if (modifiers & Qt::ShiftModifier) flags |= 0x20000;
  if (modifiers & Qt::ControlModifier) flags |= 0x40000;
  if (modifiers & Qt::AltModifier) flags |= 0x80000;
  if (modifiers & Qt::MetaModifier) flags |= 0x100000;
  return flags;
}

// A key that repeats is told as up and down again. The toolkit takes such a release for a true one when the press has
// not arrived by then.
constexpr std::chrono::milliseconds repeatArrives(50);

bool isModifier(std::optional<std::uint16_t> virtualKeyCode) {
  constexpr std::uint16_t first = 54;
  constexpr std::uint16_t last = 63;
  return virtualKeyCode && *virtualKeyCode >= first && *virtualKeyCode <= last;
}

}  // namespace

QtRecordedEvents::QtRecordedEvents() {
  m_release.setSingleShot(true);
  m_release.setInterval(repeatArrives);
  QObject::connect(&m_release, &QTimer::timeout, this, [this] { endHold(); });
}

QtRecordedEvents::~QtRecordedEvents() { letGo(); }

foundation::Subscription QtRecordedEvents::watch(Handler handler) {
  letGo();
  m_handler = std::move(handler);
  m_window = QGuiApplication::focusWindow();
  if (m_window) m_window->setKeyboardGrabEnabled(true);
  qGuiApp->installEventFilter(this);
  return foundation::Subscription([this, self = QPointer<QObject>(this)] {
    if (self) endWatch();
  });
}

void QtRecordedEvents::endWatch() {
  m_handler = nullptr;
  if (!m_heldKey) letGo();
}

void QtRecordedEvents::endHold() {
  m_heldKey.reset();
  m_release.stop();
  if (!m_handler) letGo();
}

void QtRecordedEvents::letGo() {
  m_heldKey.reset();
  m_release.stop();
  qGuiApp->removeEventFilter(this);
  if (m_window) m_window->setKeyboardGrabEnabled(false);
  m_window = nullptr;
}

bool QtRecordedEvents::eventFilter(QObject* watched, QEvent* event) {
  // It goes to the item with the keyboard, and would run what listens to the chord inside the program.
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  return watched == m_window && handleOwn(*event);
}

bool QtRecordedEvents::handleOwn(const QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
      return handlePress(static_cast<const QKeyEvent&>(event));
    case QEvent::KeyRelease:
      return handleRelease(static_cast<const QKeyEvent&>(event));
    case QEvent::MouseButtonRelease:
      handleMouse(static_cast<const QMouseEvent&>(event));
      return false;
    case QEvent::FocusOut:
    case QEvent::WindowBlocked:
      endHold();
      return false;
    default:
      return false;
  }
}

bool QtRecordedEvents::handlePress(const QKeyEvent& event) {
  const auto code = virtualKeyCode(event.nativeScanCode() - x11KeycodeOffset);
  if (isModifier(code)) return false;
  const bool isRepeat =
      event.nativeScanCode() == m_heldKey && m_release.isActive() && event.timestamp() == m_releaseTime;
  if (isRepeat) m_release.stop();
  if (isRepeat || event.isAutoRepeat()) return true;
  if (!m_handler) {
    endHold();
    return false;
  }
  const Handler handler = m_handler;  // a copy: it may end the watch
  m_release.stop();
  m_heldKey = event.nativeScanCode();
  const Event told{.keyCode = code, .modifierFlags = flags(event.QInputEvent::modifiers())};
  if (handler(told) == Disposition::swallow) return true;
  endHold();
  return false;
}

bool QtRecordedEvents::handleRelease(const QKeyEvent& event) {
  if (event.nativeScanCode() != m_heldKey) return false;
  if (event.isAutoRepeat()) return true;
  m_releaseTime = event.timestamp();
  m_release.start();
  return true;
}

void QtRecordedEvents::handleMouse(const QMouseEvent& event) {
  const bool isLeft = event.button() == Qt::LeftButton;
  if (!m_handler || (!isLeft && event.button() != Qt::RightButton)) return;
  const Handler handler = m_handler;
  handler({.type = isLeft ? Event::Type::leftMouseUp : Event::Type::rightMouseUp,
           .location = {event.position().x(), event.position().y()}});
}

}  // namespace platform
