#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <optional>

#include "Defaults/Defaults.h"
#include "Quillmonger/settings/ColorScheme.h"

namespace quillmonger {

/// Whether the windows are dark: as the setting `selectedColorScheme` says, or else as the desktop is. Main thread.
class Appearance final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged)

 public:
  /// `defaults` outlives this object.
  explicit Appearance(defaults::Defaults& defaults);

  [[nodiscard]] bool isDark() const;

 signals:
  void isDarkChanged();

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;

  std::optional<ColorScheme> m_selectedColorScheme;
  foundation::Subscription m_subscription;
};

}  // namespace quillmonger
