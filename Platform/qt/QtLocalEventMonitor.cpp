#include "Platform/qt/QtLocalEventMonitor.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QVariant>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "Platform/keyboard/KeyCodeTable.h"

namespace platform {

namespace {

using quillmonger::KeyEvent;

std::uint32_t flags(Qt::KeyboardModifiers modifiers) {
  std::uint32_t flags = 0;
  if (modifiers & Qt::ShiftModifier) flags |= quillmonger::shiftFlag;
  if (modifiers & Qt::ControlModifier) flags |= quillmonger::commandFlag;
  if (modifiers & Qt::AltModifier) flags |= quillmonger::optionFlag;
  if (modifiers & Qt::MetaModifier) flags |= quillmonger::controlFlag;
  return flags;
}

// The flag that a modifier key stands for; 0 for any other key.
std::uint32_t modifierOfKey(std::uint16_t virtualKeyCode) {
  switch (virtualKeyCode) {
    case 56:
    case 60:
      return quillmonger::shiftFlag;
    case 59:
    case 62:
      return quillmonger::commandFlag;
    case 58:
    case 61:
      return quillmonger::optionFlag;
    case 54:
    case 55:
      return quillmonger::controlFlag;
    default:
      return 0;
  }
}

// Absent for a key of no known position, and for the release of anything but a modifier key.
std::optional<KeyEvent> keyEvent(const QKeyEvent& event) {
  const auto code = virtualKeyCode(event.nativeScanCode() - x11KeycodeOffset);
  if (!code) return std::nullopt;
  const std::uint32_t own = modifierOfKey(*code);
  const bool isPress = event.type() == QEvent::KeyPress;
  if (own == 0 && !isPress) return std::nullopt;
  // The window system's modifiers are those before the event, so the key's own is taken from the event itself.
  const std::uint32_t others = flags(event.QInputEvent::modifiers()) & ~own;
  return KeyEvent{own == 0 ? KeyEvent::Type::keyDown : KeyEvent::Type::flagsChanged, *code,
                  others | (isPress ? own : 0), event.isAutoRepeat()};
}

bool keepsKey(const QWindow& window, const QKeyEvent& event) {
  if (window.modality() != Qt::NonModal) return true;
  // Of the item with the keyboard, or of one that it stands in.
  const auto isOwnKey = [&event](const QObject* item) {
    return item->property("ownKeys").toList().contains(event.key());
  };
  const QObject* item = window.focusObject();
  while (item != nullptr && !isOwnKey(item))
    item = item->property("parent").value<QObject*>();
  return item != nullptr;
}

}  // namespace

QtLocalEventMonitor::QtLocalEventMonitor() { qGuiApp->installEventFilter(this); }

foundation::Subscription QtLocalEventMonitor::addLocalMonitor(Handler handler) {
  auto entry = std::make_shared<Handler>(std::move(handler));
  m_handlers->push_back(entry);
  return foundation::Subscription([entry, handlers = std::weak_ptr<Handlers>(m_handlers)] {
    if (const auto present = handlers.lock()) std::erase(*present, entry);
  });
}

// Qt sends each event to the window first, and from there to items; only the former counts.
bool QtLocalEventMonitor::eventFilter(QObject* watched, QEvent* event) {
  const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
  if (!isKey || !watched->isWindowType()) return false;
  const auto& key = *static_cast<const QKeyEvent*>(event);
  if (keepsKey(*static_cast<const QWindow*>(watched), key)) return false;
  const auto translated = keyEvent(key);
  return translated && tell(*translated) == Disposition::swallow;
}

quillmonger::LocalEventMonitoring::Disposition QtLocalEventMonitor::tell(const KeyEvent& event) const {
  const Handlers handlers = *m_handlers;  // a copy: a handler may end its own monitor
  for (const auto& handler : handlers) {
    if (std::ranges::find(*m_handlers, handler) == m_handlers->end()) continue;
    if ((*handler)(event) == Disposition::swallow) return Disposition::swallow;
  }
  return Disposition::pass;
}

}  // namespace platform
