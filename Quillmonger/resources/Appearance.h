#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <functional>
#include <optional>

#include "Defaults/Defaults.h"
#include "Quillmonger/settings/DesktopPreferences.h"

namespace quillmonger {

/// Whether the windows are dark: as the setting `selectedColorScheme` says, or else as the user has told the desktop,
/// or else as the toolkit's own colours are. And whether they keep still. Main thread.
class Appearance final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged)
  Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY reducesMotionChanged)

 public:
  /// `defaults` outlives this object.
  explicit Appearance(defaults::Defaults& defaults);

  /// Heeds the desktop's preferences from now on. They outlive this object. `reducesMotion` tells whether any place
  /// where users say so speaks against motion; it is asked again when the preferences change, and when the program
  /// comes to the front. At most once.
  void follow(DesktopPreferences& desktop, std::function<bool()> reducesMotion);

  [[nodiscard]] bool isDark() const;
  [[nodiscard]] bool reducesMotion() const { return m_reducesMotion; }

 signals:
  void isDarkChanged();
  void reducesMotionChanged();

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void updateMotion();

  std::optional<ColorScheme> m_selectedColorScheme;
  std::optional<ColorScheme> m_desktopColorScheme;
  std::function<bool()> m_motion = [] { return false; };
  bool m_reducesMotion = false;
  foundation::Subscription m_settingSubscription;
  foundation::Subscription m_schemeSubscription;
  foundation::Subscription m_motionSubscription;
};

}  // namespace quillmonger
