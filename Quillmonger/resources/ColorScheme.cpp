#include "Quillmonger/resources/ColorScheme.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace quillmonger {

ColorScheme::ColorScheme() { qGuiApp->installEventFilter(this); }

bool ColorScheme::eventFilter(QObject* watched, QEvent* event) {
  if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange) emit isDarkChanged();
  return false;
}

void ColorScheme::setChoice(Choice choice) {
  m_choice = choice;
  emit isDarkChanged();
}

bool ColorScheme::isDark() const {
  if (m_choice != Choice::desktop) return m_choice == Choice::dark;
  const QPalette palette = QGuiApplication::palette();
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

}  // namespace quillmonger
