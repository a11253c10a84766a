#include "Settings/view/UserInteractionPausableWindow.h"

#include <QEvent>
#include <QWindow>

namespace settings {

namespace {

bool isOfMouseOrKeys(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
      return true;
    default:
      return false;
  }
}

}  // namespace

UserInteractionPausableWindow::UserInteractionPausableWindow(QWindow& window) : QObject(&window) {
  window.installEventFilter(this);
}

bool UserInteractionPausableWindow::eventFilter(QObject* /*watched*/, QEvent* event) {
  return !m_isUserInteractionEnabled && isOfMouseOrKeys(event->type());
}

}  // namespace settings
