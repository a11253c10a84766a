#include "Platform/qt/QtRecordedEvents.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
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

bool isModifier(std::optional<std::uint16_t> virtualKeyCode) {
  constexpr std::uint16_t first = 54;
  constexpr std::uint16_t last = 63;
  return virtualKeyCode && *virtualKeyCode >= first && *virtualKeyCode <= last;
}

}  // namespace

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

void QtRecordedEvents::letGo() {
  m_heldKey.reset();
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
      m_heldKey.reset();
      if (!m_handler) letGo();
      return false;
    default:
      return false;
  }
}

bool QtRecordedEvents::handlePress(const QKeyEvent& event) {
  const auto code = virtualKeyCode(event.nativeScanCode() - x11KeycodeOffset);
  if (isModifier(code)) return false;
  if (event.isAutoRepeat()) return true;
  if (!m_handler) return true;
  const Handler handler = m_handler;  // a copy: it may end the watch
  m_heldKey = event.nativeScanCode();
  const Event told{.keyCode = code, .modifierFlags = flags(event.QInputEvent::modifiers())};
  if (handler(told) == Disposition::swallow) return true;
  m_heldKey.reset();
  if (!m_handler) letGo();
  return false;
}

bool QtRecordedEvents::handleRelease(const QKeyEvent& event) {
  if (event.nativeScanCode() != m_heldKey) return false;
  if (event.isAutoRepeat()) return true;
  m_heldKey.reset();
  if (!m_handler) letGo();
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
