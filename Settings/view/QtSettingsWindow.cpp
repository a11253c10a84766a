#include "Settings/view/QtSettingsWindow.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <utility>

#include "Foundation/Fatal.h"

namespace settings {

namespace {

constexpr int animationMilliseconds = 250;
// Room for a title bar, whose height is known only when the window has been shown.
constexpr int usualTitleBar = 40;

int rounded(double points) { return static_cast<int>(std::lround(points)); }

}  // namespace

QtSettingsWindow::QtSettingsWindow(Surroundings surroundings)
    : m_surroundings(std::move(surroundings)), m_frameAutosave(m_surroundings.store) {
  m_animation.setStartValue(0.0);
  m_animation.setEndValue(1.0);
  m_animation.setDuration(animationMilliseconds);
  m_animation.setEasingCurve(QEasingCurve::InOutQuad);
}

void QtSettingsWindow::center() {
  if (!view().isVisible()) m_surroundings.center();
}

void QtSettingsWindow::setFrameUsingName(std::string_view name) {
  const auto stored = m_frameAutosave.frame(name);
  if (!stored || view().isVisible()) return;
  const QPoint titleBar(rounded(stored->left + frame().width / 2), rounded(stored->top));
  if (QGuiApplication::screenAt(titleBar) == nullptr) return;
  view().setPosition(rounded(stored->left), rounded(stored->top));
}

void QtSettingsWindow::setFrameAutosaveName(std::string_view name) {
  m_autosaveName = name;
  connect(&view(), &QWindow::xChanged, this, &QtSettingsWindow::saveFrame, Qt::UniqueConnection);
  connect(&view(), &QWindow::yChanged, this, &QtSettingsWindow::saveFrame, Qt::UniqueConnection);
}

// What it goes through before it is on the screen is no choice of the user's.
void QtSettingsWindow::saveFrame() {
  if (view().isVisible()) m_frameAutosave.save(m_autosaveName, frame());
}

void QtSettingsWindow::setTitle(const std::string& title) { view().setTitle(QString::fromStdString(title)); }

Frame QtSettingsWindow::frame() const {
  const QRect place = view().geometry();
  return {static_cast<double>(place.x()), static_cast<double>(place.y()), static_cast<double>(place.width()),
          static_cast<double>(place.height())};
}

Size QtSettingsWindow::frameRectForContentRect(const Size& content) const {
  const QQuickItem* root = view().rootObject();
  const double width = std::max(content.width, root->property("toolbarWidth").toDouble());
  const double height = content.height + root->property("toolbarHeight").toDouble();
  const QScreen* screen = view().screen();
  if (screen == nullptr) return {std::ceil(width), std::ceil(height)};
  const double highest = screen->availableGeometry().height() - usualTitleBar;
  return {std::ceil(width), std::ceil(std::min(height, highest))};
}

void QtSettingsWindow::setFrame(const Frame& frame) {
  const QPoint place(rounded(frame.left), rounded(frame.top));
  m_size.set({std::round(frame.width), std::round(frame.height)});
  if (view().position() != place) view().setPosition(place);
}

void QtSettingsWindow::animate(const Step& step, const std::function<void()>& completion) {
  if (m_surroundings.reducesMotion() || !view().isVisible()) {
    step(1);
    completion();
    return;
  }
  m_animation.disconnect(this);
  connect(&m_animation, &QVariantAnimation::valueChanged, this,
          [step](const QVariant& value) { step(value.toDouble()); });
  connect(&m_animation, &QVariantAnimation::finished, this, [step, completion] {
    step(1);
    completion();
  });
  m_animation.start();
}

// Taking it to its end tells both the last value and that it has finished.
void QtSettingsWindow::endAnimation() {
  if (m_animation.state() == QAbstractAnimation::Running) m_animation.setCurrentTime(m_animation.totalDuration());
}

void QtSettingsWindow::setUserInteractionEnabled(bool isEnabled) {
  if (!m_pausableWindow) m_pausableWindow = new UserInteractionPausableWindow(view());
  m_pausableWindow->setUserInteractionEnabled(isEnabled);
}

QQuickItem& QtSettingsWindow::paneArea() const {
  auto* area = view().rootObject()->findChild<QQuickItem*>(QStringLiteral("SettingsPaneArea"));
  if (area == nullptr) foundation::stopProcess("The settings' window has no place for its panes.");
  return *area;
}

}  // namespace settings
