#include "Platform/qt/QuickView.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QRegion>
#include <algorithm>
#include <cmath>
#include <utility>

namespace platform {

namespace {

// What the toolkit's own windows carry that must not take the keyboard when they appear.
constexpr auto showsWithoutActivatingProperty = "_q_showWithoutActivating";

int levelOf(const QWindow* window) { return window->property(levelProperty).toInt(); }

// The program's other windows on the screen, the lowest first.
QWindowList othersByLevel(const QWindow* window) {
  QWindowList others = QGuiApplication::topLevelWindows();
  others.removeIf([window](const QWindow* other) { return other == window || !other->isVisible(); });
  std::ranges::stable_sort(others, {}, levelOf);
  return others;
}

}  // namespace

QuickView::QuickView(QQmlEngine& engine, quillmonger::WindowSystem& windowSystem, Extent extent)
    : QQuickView(&engine, nullptr), m_windowSystem(windowSystem), m_extent(extent) {
  setResizeMode(QQuickView::SizeRootObjectToView);
}

// The window manager must know the window before it is asked for the front.
void QuickView::showInFront() {
  m_comesToFront = !isExposed();
  if (!isActive()) setProperty(awaitsFrontProperty, true);
  show();
  raise();
  if (isExposed()) m_windowSystem.bringToFront(winId());
}

void QuickView::showBehindTheFront() {
  setProperty(showsWithoutActivatingProperty, true);
  show();
  raise();
  for (QWindow* other : othersByLevel(this)) {
    if (levelOf(other) > levelOf(this)) other->raise();
  }
}

void QuickView::handOverFront() {
  const QWindowList others = othersByLevel(this);
  if (!isActive() || others.isEmpty()) return;
  others.last()->setProperty(awaitsFrontProperty, true);
  m_windowSystem.bringToFront(others.last()->winId());
}

void QuickView::exposeEvent(QExposeEvent* event) {
  QQuickView::exposeEvent(event);
  if (isExposed() && std::exchange(m_comesToFront, false)) m_windowSystem.bringToFront(winId());
}

void QuickView::focusInEvent(QFocusEvent* event) {
  setProperty(awaitsFrontProperty, false);
  QQuickView::focusInEvent(event);
}

void QuickView::hideEvent(QHideEvent* event) {
  setProperty(awaitsFrontProperty, false);
  QQuickView::hideEvent(event);
}

void QuickView::resizeEvent(QResizeEvent* event) {
  QQuickView::resizeEvent(event);
  if (m_extent == Extent::window || rootObject() == nullptr) return;
  const double contentWidth = std::min(rootObject()->implicitWidth(), static_cast<double>(width()));
  rootObject()->setWidth(contentWidth);
  setMask(QRegion(0, 0, static_cast<int>(std::ceil(contentWidth)), height()));
}

}  // namespace platform
