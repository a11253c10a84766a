#include "LaunchAtLogin/LaunchAtLogin.h"

#include <string_view>
#include <utility>

namespace launchatlogin {

LaunchAtLogin::LaunchAtLogin(AppService& mainApp, LogError logError)
    : m_mainApp(mainApp), m_logError(std::move(logError)) {}

bool LaunchAtLogin::isEnabled() const { return m_mainApp.status() == AppService::Status::enabled; }

void LaunchAtLogin::setEnabled(bool isEnabled) {
  m_observable.objectWillChange().send({});
  const auto outcome = isEnabled ? enable() : m_mainApp.unregisterApp();
  if (outcome) return;
  const std::string_view step = isEnabled ? "enable" : "disable";
  m_logError("Failed to " + std::string(step) + " launch at login: " + outcome.error().message);
}

foundation::Outcome LaunchAtLogin::enable() {
  if (isEnabled()) {
    auto outcome = m_mainApp.unregisterApp();
    if (!outcome) return outcome;
  }
  return m_mainApp.registerApp();
}

}  // namespace launchatlogin
