#pragma once

#include <functional>
#include <string>
#include <variant>

#include "Foundation/Stream.h"
#include "LaunchAtLogin/AppService.h"

namespace launchatlogin {

/// Turns the start of the program at login on and off. Holds no state: what it reads is what the desktop holds. Main
/// thread.
class LaunchAtLogin final {
 public:
  /// The value as a view holds it.
  class Observable final {
   public:
    explicit Observable(LaunchAtLogin& launchAtLogin) : m_launchAtLogin(launchAtLogin) {}

    [[nodiscard]] bool isEnabled() const { return m_launchAtLogin.isEnabled(); }
    void setEnabled(bool isEnabled) { m_launchAtLogin.setEnabled(isEnabled); }
    /// Fires ahead of each write, whoever makes it, and whether or not it will succeed.
    [[nodiscard]] foundation::Stream<std::monostate>& objectWillChange() { return m_objectWillChange; }

   private:
    LaunchAtLogin& m_launchAtLogin;
    foundation::Stream<std::monostate> m_objectWillChange;
  };

  using LogError = std::function<void(const std::string& message)>;

  /// `logError` writes to the system's log. `mainApp` outlives this object.
  LaunchAtLogin(AppService& mainApp, LogError logError);
  LaunchAtLogin(const LaunchAtLogin&) = delete;
  LaunchAtLogin& operator=(const LaunchAtLogin&) = delete;

  [[nodiscard]] bool isEnabled() const;
  /// Turning it on while it is on renews the registration. A failure is logged, and seen at the next read.
  void setEnabled(bool isEnabled);
  [[nodiscard]] Observable& observable() { return m_observable; }

 private:
  [[nodiscard]] foundation::Outcome enable();

  AppService& m_mainApp;
  LogError m_logError;
  Observable m_observable{*this};
};

}  // namespace launchatlogin
