#include "Platform/qt/QtQuickWindow.h"

#include <QCursor>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QScreen>
#include <QSurfaceFormat>
#include <algorithm>
#include <cmath>
#include <utility>

#include "Foundation/Fatal.h"
#include "Platform/qt/QuickView.h"

namespace platform {

namespace {

constexpr double heightAboveCentre = 0.4;  // of the free height, the part that is left above the window
constexpr int floatingLevel = 3;
constexpr int ordinaryLevel = 0;

bool isPalette(QtQuickWindow::Kind kind) {
  return kind == QtQuickWindow::Kind::palette || kind == QtQuickWindow::Kind::companion;
}

// The screens' places are given in pixels, unlike their sizes.
QScreen* screenAt(const quillmonger::WindowSystem::Pixel& pixel) {
  const auto screens = QGuiApplication::screens();
  const auto found = std::ranges::find_if(screens, [&pixel](const QScreen* screen) {
    const QRect points = screen->geometry();
    return QRect(points.topLeft(), points.size() * screen->devicePixelRatio()).contains(pixel.x, pixel.y);
  });
  return found == screens.end() ? nullptr : *found;
}

}  // namespace

QtQuickWindow::QtQuickWindow(Description description, quillmonger::WindowSystem& windowSystem)
    : m_description(std::move(description)),
      m_windowSystem(windowSystem),
      m_level(isPalette(m_description.kind) ? floatingLevel : ordinaryLevel),
      m_width(m_description.size.width()) {}

QtQuickWindow::~QtQuickWindow() = default;

void QtQuickWindow::prepare() {
  if (m_view) return;
  m_view = std::make_unique<QuickView>(m_description.engine(), m_windowSystem);
  m_view->setTitle(m_description.title);
  m_view->setProperty(levelProperty, m_level);
  applyKind();
  Content content = m_description.content();
  m_view->setInitialProperties(content.initialProperties);
  m_view->setSource(content.source);
  if (m_view->rootObject() == nullptr) foundation::stopProcess("A window's content could not be loaded.");
  followSize();
  m_view->create();
  // Painting once while hidden loads fonts and pictures, which the first show would wait for. A window that learns its
  // size later has nothing to paint on yet.
  if (!m_view->size().isEmpty()) m_view->grabWindow();
}

void QtQuickWindow::applyKind() {
  if (m_description.kind == Kind::dialog) {
    m_view->setFlags(Qt::Dialog);
    return;
  }
  m_view->setFlags(Qt::Window | Qt::FramelessWindowHint);
  m_view->setFlag(Qt::WindowStaysOnTopHint, isPalette(m_description.kind));
  m_view->setFlag(Qt::WindowDoesNotAcceptFocus, m_description.kind == Kind::companion);
  QSurfaceFormat format = m_view->format();
  format.setAlphaBufferSize(8);
  m_view->setFormat(format);
  m_view->setColor(Qt::transparent);
}

void QtQuickWindow::followSize() {
  if (!m_description.size.isEmpty()) {
    applySize(QSize(shownWidth(m_width), m_description.size.height()));
    return;
  }
  // What the content wants is known when it has been laid out, and can change.
  const QQuickItem* content = m_view->rootObject();
  const auto apply = [this, content] {
    const QSize size = QSizeF(content->implicitWidth(), content->implicitHeight()).toSize();
    if (!size.isEmpty()) applySize(size);
  };
  apply();
  QObject::connect(content, &QQuickItem::implicitWidthChanged, m_view.get(), apply);
  QObject::connect(content, &QQuickItem::implicitHeightChanged, m_view.get(), apply);
}

// A companion's frame is as wide as the logic wants it, and its window no wider than there is anything to see: a
// compositor draws the shadow around the window.
int QtQuickWindow::shownWidth(double width) const {
  const double shown = m_description.kind == Kind::companion ? m_view->rootObject()->implicitWidth() : width;
  return static_cast<int>(std::lround(std::min(width, shown)));
}

void QtQuickWindow::applySize(const QSize& size) {
  m_view->resize(size);
  if (m_description.kind == Kind::plain) return m_view->setMinimumSize(size);
  fixSize(size);
}

// Besides the user, this keeps off a window manager that tiles: it lets a window of fixed size float in its place.
void QtQuickWindow::fixSize(const QSize& size) {
  if (size == m_view->minimumSize()) return;
  m_view->setMinimumSize(QSize());
  m_view->setMaximumSize(size);
  m_view->setMinimumSize(size);
}

void QtQuickWindow::unload() { m_view.reset(); }

bool QtQuickWindow::isVisible() const { return m_view && m_view->isVisible(); }

quillmonger::WindowFrame QtQuickWindow::frame() const {
  const QRect place = m_view ? m_view->geometry() : QRect(QPoint(), m_description.size);
  return {static_cast<double>(place.x()), static_cast<double>(place.y() + place.height()),
          m_description.kind == Kind::companion ? m_width : place.width(), static_cast<double>(place.height())};
}

double QtQuickWindow::paneWidth() {
  prepare();
  return m_view->width();
}

void QtQuickWindow::setFrame(const quillmonger::WindowFrame& frame) {
  prepare();
  m_width = frame.width;
  const QPoint corner(static_cast<int>(std::lround(frame.left)),
                      static_cast<int>(std::lround(frame.bottom - frame.height)));
  const QSize size(shownWidth(frame.width), static_cast<int>(std::lround(frame.height)));
  if (isPalette(m_description.kind)) fixSize(size);
  m_view->setGeometry(QRect(corner, size));
}

void QtQuickWindow::setAlpha(double alpha) {
  prepare();
  m_view->setOpacity(alpha);
}

void QtQuickWindow::setLevel(int level) {
  m_level = level;
  if (m_view) m_view->setProperty(levelProperty, level);
}

QScreen* QtQuickWindow::screenInUse() const {
  const auto focused = m_windowSystem.focusedWindowCentre();
  QScreen* screen = focused ? screenAt(*focused) : nullptr;
  if (screen == nullptr) screen = QGuiApplication::screenAt(QCursor::pos());
  return screen == nullptr ? QGuiApplication::primaryScreen() : screen;
}

void QtQuickWindow::center() {
  prepare();
  QScreen* screen = screenInUse();
  if (screen == nullptr) return;
  const QRect free = screen->availableGeometry();
  const int x = free.x() + (free.width() - m_view->width()) / 2;
  const int y = free.y() + static_cast<int>((free.height() - m_view->height()) * heightAboveCentre);
  m_view->setScreen(screen);
  m_view->setPosition(std::max(x, free.x()), std::max(y, free.y()));
}

void QtQuickWindow::makeRoomAtRight(double width) {
  if (!m_view || m_view->screen() == nullptr) return;
  const QRect free = m_view->screen()->availableGeometry();
  const int furthestRight = free.x() + free.width() - static_cast<int>(std::ceil(width)) - m_view->width();
  if (m_view->x() > furthestRight) m_view->setPosition(std::max(furthestRight, free.x()), m_view->y());
}

void QtQuickWindow::makeKeyAndOrderFront() {
  prepareToShow();
  m_view->showInFront();
}

void QtQuickWindow::orderFront() {
  prepareToShow();
  m_view->showBehindTheFront();
}

void QtQuickWindow::prepareToShow() {
  prepare();
  if (m_description.kind == Kind::dialog) return;
  m_view->rootObject()->setProperty("blendsTransparency", m_windowSystem.blendsTransparency());
  if (isPalette(m_description.kind) && !isVisible()) m_windowSystem.keepOutOfTaskList(m_view->winId());
}

QQuickView* QtQuickWindow::view() const { return m_view.get(); }

void QtQuickWindow::orderOut() {
  if (m_view) m_view->hide();
}

}  // namespace platform
