#include "Platform/qt/QtQuickWindow.h"

#include <QCursor>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <QSurfaceFormat>
#include <utility>

#include "Foundation/Fatal.h"

namespace platform {

namespace {

constexpr double heightAboveCentre = 0.4;  // of the free height, the part that is left above the window

}  // namespace

class QtQuickWindow::View final : public QQuickView {
 public:
  View(QQmlEngine& engine, quillmonger::WindowSystem& windowSystem)
      : QQuickView(&engine, nullptr), m_windowSystem(windowSystem) {}

  // The window manager must know the window before it is asked for the front.
  void showInFront() {
    m_comesToFront = !isExposed();
    if (!isActive()) setProperty(awaitsFrontProperty, true);
    show();
    raise();
    if (isExposed()) m_windowSystem.bringToFront(winId());
  }

 private:
  void exposeEvent(QExposeEvent* event) override {
    QQuickView::exposeEvent(event);
    if (isExposed() && std::exchange(m_comesToFront, false)) m_windowSystem.bringToFront(winId());
  }

  void focusInEvent(QFocusEvent* event) override {
    setProperty(awaitsFrontProperty, false);
    QQuickView::focusInEvent(event);
  }

  void hideEvent(QHideEvent* event) override {
    setProperty(awaitsFrontProperty, false);
    QQuickView::hideEvent(event);
  }

  quillmonger::WindowSystem& m_windowSystem;
  bool m_comesToFront = false;
};

QtQuickWindow::QtQuickWindow(Description description, quillmonger::WindowSystem& windowSystem)
    : m_description(std::move(description)), m_windowSystem(windowSystem) {}

QtQuickWindow::~QtQuickWindow() = default;

void QtQuickWindow::prepare() {
  if (m_view) return;
  m_view = std::make_unique<View>(m_description.engine(), m_windowSystem);
  m_view->setTitle(m_description.title);
  m_view->setResizeMode(QQuickView::SizeRootObjectToView);
  applyKind();
  Content content = m_description.content();
  m_view->setInitialProperties(content.initialProperties);
  m_view->setSource(content.source);
  if (m_view->rootObject() == nullptr) foundation::stopProcess("A window's content could not be loaded.");
  followSize();
  m_view->create();
  // Painting once while hidden loads fonts and pictures, which the first show would wait for.
  m_view->grabWindow();
}

void QtQuickWindow::applyKind() {
  if (m_description.kind == Kind::dialog) {
    m_view->setFlags(Qt::Dialog);
    return;
  }
  m_view->setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
  QSurfaceFormat format = m_view->format();
  format.setAlphaBufferSize(8);
  m_view->setFormat(format);
  m_view->setColor(Qt::transparent);
}

void QtQuickWindow::followSize() {
  if (!m_description.size.isEmpty()) {
    applySize(m_description.size);
    return;
  }
  // What the content wants is known when it has been laid out, and can change.
  const QQuickItem* content = m_view->rootObject();
  const auto apply = [this, content] {
    applySize(QSizeF(content->implicitWidth(), content->implicitHeight()).toSize());
  };
  apply();
  QObject::connect(content, &QQuickItem::implicitWidthChanged, m_view.get(), apply);
  QObject::connect(content, &QQuickItem::implicitHeightChanged, m_view.get(), apply);
}

void QtQuickWindow::applySize(const QSize& size) {
  m_view->resize(size);
  if (m_description.kind != Kind::dialog) return;
  m_view->setMinimumSize(size);
  m_view->setMaximumSize(size);
}

void QtQuickWindow::unload() { m_view.reset(); }

bool QtQuickWindow::isVisible() const { return m_view && m_view->isVisible(); }

void QtQuickWindow::center() {
  prepare();
  QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  const QRect free = screen->availableGeometry();
  const int x = free.x() + (free.width() - m_view->width()) / 2;
  const int y = free.y() + static_cast<int>((free.height() - m_view->height()) * heightAboveCentre);
  m_view->setScreen(screen);
  m_view->setPosition(std::max(x, free.x()), std::max(y, free.y()));
}

void QtQuickWindow::makeKeyAndOrderFront() {
  prepare();
  if (m_description.kind == Kind::palette) {
    m_view->rootObject()->setProperty("blendsTransparency", m_windowSystem.blendsTransparency());
    if (!isVisible()) m_windowSystem.keepOutOfTaskList(m_view->winId());
  }
  m_view->showInFront();
}

QQuickView* QtQuickWindow::view() const { return m_view.get(); }

void QtQuickWindow::orderOut() {
  if (m_view) m_view->hide();
}

}  // namespace platform
