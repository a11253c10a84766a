#include "Quillmonger/resources/Appearance.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <utility>

#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

Appearance::Appearance(defaults::Defaults& defaults) {
  m_settingSubscription = defaults.updates<std::optional<ColorScheme>>(
      keys::selectedColorScheme, defaults::Defaults::Initial::yes, [this](const std::optional<ColorScheme>& scheme) {
        m_selectedColorScheme = scheme;
        emit isDarkChanged();
      });
  qGuiApp->installEventFilter(this);
}

void Appearance::follow(DesktopPreferences& desktop, std::function<bool()> reducesMotion) {
  m_motion = std::move(reducesMotion);
  m_schemeSubscription = desktop.colorScheme().follow([this](const std::optional<ColorScheme>& scheme) {
    m_desktopColorScheme = scheme;
    emit isDarkChanged();
  });
  m_motionSubscription = desktop.reducesMotion().follow([this](bool) { updateMotion(); });
}

void Appearance::updateMotion() {
  const bool reduces = m_motion();
  if (std::exchange(m_reducesMotion, reduces) != reduces) emit reducesMotionChanged();
}

bool Appearance::isDark() const {
  if (m_selectedColorScheme) return *m_selectedColorScheme == ColorScheme::dark;
  if (m_desktopColorScheme) return *m_desktopColorScheme == ColorScheme::dark;
  const QPalette palette = QGuiApplication::palette();
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

bool Appearance::eventFilter(QObject* watched, QEvent* event) {
  if (watched != qGuiApp) return false;
  if (event->type() == QEvent::ApplicationPaletteChange) emit isDarkChanged();
  if (event->type() == QEvent::ApplicationStateChange) updateMotion();
  return false;
}

}  // namespace quillmonger
