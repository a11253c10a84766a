#include "Platform/qt/QtApplication.h"

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QWindow>
#include <algorithm>
#include <functional>
#include <utility>

#include "Platform/qt/QuickView.h"

namespace platform {

namespace {

// Between two windows of ours, the one that goes and the one that comes, the keyboard is nobody's for a moment.
bool isFrontAwaited() {
  const auto windows = QGuiApplication::topLevelWindows();
  return std::ranges::any_of(windows, [](const QWindow* window) {
    return window->isVisible() && window->property(awaitsFrontProperty).toBool();
  });
}

void tellArrival(xcb_window_t id) {
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    if (window->handle() != nullptr && window->winId() == id) window->setProperty(awaitsFrontProperty, false);
  }
}

}  // namespace

// While a chord or a menu holds the keyboard, X11 says that the focus went out and in again, though it stays where it
// is. Qt would take that for the loss of the front. And when the focus went out and comes back at once, Qt tells a
// window of neither, or of the loss alone when it is back already.
class QtApplication::FocusFilter final : public QAbstractNativeEventFilter {
 public:
  /// `tellLoss` is called each time that a window of ours has lost the keyboard.
  explicit FocusFilter(std::function<void()> tellLoss) : m_tellLoss(std::move(tellLoss)) {}

  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* /*result*/) override {
    if (eventType != "xcb_generic_event_t") return false;
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    const int type = event->response_type & 0x7F;
    if (type != XCB_FOCUS_OUT && type != XCB_FOCUS_IN) return false;
    const auto* focus = reinterpret_cast<const xcb_focus_in_event_t*>(event);
    if (focus->mode == XCB_NOTIFY_MODE_GRAB || focus->mode == XCB_NOTIFY_MODE_UNGRAB) return true;
    // Where the pointer is, while the keyboard is nobody's.
    if (focus->detail == XCB_NOTIFY_DETAIL_POINTER) return false;
    m_hasFocus = type == XCB_FOCUS_IN;
    if (m_hasFocus) {
      tellArrival(focus->event);
    } else {
      m_tellLoss();
    }
    return false;
  }

  /// As far as the display has told.
  [[nodiscard]] bool hasFocus() const { return m_hasFocus; }

 private:
  std::function<void()> m_tellLoss;
  bool m_hasFocus = false;
};

QtApplication::QtApplication(quillmonger::WindowSystem& windowSystem) : m_windowSystem(windowSystem) {
  // In a later turn, when Qt has heard of it too.
  m_focusFilter = std::make_unique<FocusFilter>([this] {
    QMetaObject::invokeMethod(
        &m_connections, [this] { resignUnlessFocused(); }, Qt::QueuedConnection);
  });
  QGuiApplication::setQuitOnLastWindowClosed(false);
  qGuiApp->installNativeEventFilter(m_focusFilter.get());
  QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &m_connections,
                   [this](Qt::ApplicationState state) {
                     m_isActiveForQt = state == Qt::ApplicationActive;
                     m_isActive = m_isActive || m_isActiveForQt;
                     resignUnlessFocused();
                   });
}

// Of a loss that was over when Qt told of it, Qt tells nothing when the keyboard is lost in earnest: the display does.
void QtApplication::resignUnlessFocused() {
  if (m_isActiveForQt || m_focusFilter->hasFocus() || !std::exchange(m_isActive, false)) return;
  if (!isFrontAwaited()) m_didResignActive.send(0);
}

QtApplication::~QtApplication() { qGuiApp->removeNativeEventFilter(m_focusFilter.get()); }

// An entry in the task list belongs to a window on this desktop, and to none of a program without windows: each window
// decides for itself, and the policy needs nothing.
void QtApplication::setActivationPolicy(ActivationPolicy /*policy*/) {}

void QtApplication::activateIgnoringOtherApps() {
  for (const QWindow* window : QGuiApplication::topLevelWindows()) {
    if (window->isVisible()) m_windowSystem.bringToFront(window->winId());
  }
}

// The window manager gives the focus back to the window that had it as soon as ours are gone.
void QtApplication::hide() {
  for (QWindow* window : QGuiApplication::topLevelWindows())
    window->hide();
}

void QtApplication::terminate() {
  QMetaObject::invokeMethod(
      qGuiApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
}

foundation::Subscription QtApplication::onDidResignActive(std::function<void()> receiver) {
  return m_didResignActive.subscribe([receiver = std::move(receiver)](int) { receiver(); });
}

}  // namespace platform
