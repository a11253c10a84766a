#pragma once

#include "Quillmonger/settings/DesktopPreferences.h"
#include "Quillmonger/shell/windows/MotionPreference.h"

namespace quillmonger {

/// What the user has told the desktop about motion, in whichever of two places: desktops differ in where they keep it.
/// Main thread.
class DesktopMotion final : public MotionPreference {
 public:
  /// Both outlive this object.
  DesktopMotion(DesktopPreferences& preferences, const MotionPreference& windowSystem)
      : m_preferences(preferences), m_windowSystem(windowSystem) {}

  [[nodiscard]] bool reducesMotion() const override {
    return m_preferences.reducesMotion().value() || m_windowSystem.reducesMotion();
  }

 private:
  DesktopPreferences& m_preferences;
  const MotionPreference& m_windowSystem;
};

}  // namespace quillmonger
