#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

namespace quillmonger {

/// Whether the windows are dark: as the user has chosen, or else as the desktop is. Main thread.
class ColorScheme final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged)

 public:
  enum class Choice { desktop, light, dark };

  ColorScheme();

  void setChoice(Choice choice);
  [[nodiscard]] bool isDark() const;

 signals:
  void isDarkChanged();

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;

  Choice m_choice = Choice::desktop;
};

}  // namespace quillmonger
