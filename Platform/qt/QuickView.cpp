#include "Platform/qt/QuickView.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>
#include <utility>

namespace platform {

namespace {

// What the toolkit's own windows carry that must not take the keyboard when they appear.
constexpr auto showsWithoutActivatingProperty = "_q_showWithoutActivating";

int levelOf(const QWindow* window) { return window->property(levelProperty).toInt(); }

// The display has been told of the window before it hears anything of it over another connection.
void settleOwnConnection() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  xcb_connection_t* connection = x11 != nullptr ? x11->connection() : nullptr;
  if (connection == nullptr) return;
  std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

// All that are on the screen and whose level is higher, the lowest first.
void raiseWindowsAbove(const QWindow* window) {
  QWindowList windows = QGuiApplication::topLevelWindows();
  windows.removeIf([window](const QWindow* other) { return !other->isVisible() || levelOf(other) <= levelOf(window); });
  std::ranges::stable_sort(windows, {}, levelOf);
  for (QWindow* other : windows)
    other->raise();
}

}  // namespace

QuickView::QuickView(QQmlEngine& engine, quillmonger::WindowSystem& windowSystem)
    : QQuickView(&engine, nullptr), m_windowSystem(windowSystem) {
  setResizeMode(QQuickView::SizeRootObjectToView);
}

// Asked for the front at once, since what is typed meanwhile goes elsewhere; and again when the window is there, since
// some window managers let no window to the front before.
void QuickView::showInFront() {
  setProperty(showsWithoutActivatingProperty, false);
  // Hidden a moment ago, it can still pass for exposed and active: that it has gone is heard later.
  m_comesToFront = !isVisible() || !isExposed();
  if (m_comesToFront || !isActive()) setProperty(awaitsFrontProperty, true);
  show();
  raise();
  settleOwnConnection();
  m_windowSystem.bringToFront(winId());
}

void QuickView::showBehindTheFront() {
  m_comesToFront = false;
  setProperty(showsWithoutActivatingProperty, true);
  show();
  raise();
  raiseWindowsAbove(this);
}

void QuickView::exposeEvent(QExposeEvent* event) {
  QQuickView::exposeEvent(event);
  if (isExposed() && std::exchange(m_comesToFront, false)) m_windowSystem.bringToFront(winId());
}

void QuickView::mousePressEvent(QMouseEvent* event) {
  // The window manager has raised what was clicked.
  raiseWindowsAbove(this);
  QQuickView::mousePressEvent(event);
}

void QuickView::focusInEvent(QFocusEvent* event) {
  setProperty(awaitsFrontProperty, false);
  QQuickView::focusInEvent(event);
}

void QuickView::hideEvent(QHideEvent* event) {
  m_comesToFront = false;
  setProperty(awaitsFrontProperty, false);
  QQuickView::hideEvent(event);
}

}  // namespace platform
