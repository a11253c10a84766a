#pragma once

#include <string>
#include <utility>

#include "LaunchAtLogin/LaunchAtLogin.h"

namespace launchatlogin {

/// A switch for the start at login. Main thread only.
class Toggle final {
 public:
  /// `label`: what the switch is called, in the program's own terms. `launchAtLogin` outlives this object.
  explicit Toggle(LaunchAtLogin::Observable& launchAtLogin, std::string label = "Launch at login")
      : m_launchAtLogin(launchAtLogin), m_label(std::move(label)) {}

  [[nodiscard]] const std::string& label() const { return m_label; }
  [[nodiscard]] LaunchAtLogin::Observable& launchAtLogin() { return m_launchAtLogin; }
  [[nodiscard]] bool isOn() const { return m_launchAtLogin.isEnabled(); }
  /// Stays as it is where the desktop refuses the change.
  void flip() { m_launchAtLogin.setEnabled(!isOn()); }

 private:
  LaunchAtLogin::Observable& m_launchAtLogin;
  std::string m_label;
};

}  // namespace launchatlogin
