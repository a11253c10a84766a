#pragma once

#include <optional>
#include <string>

#include "Quillmonger/shell/windows/SettingsWindowController.h"
#include "tests/support/FakeWindow.h"

namespace testsupport {

/// The settings without a screen, told as "settings" in the log.
class FakeSettingsWindowController final : public quillmonger::SettingsWindowController {
 public:
  /// `log` outlives this object.
  explicit FakeSettingsWindowController(FakeWindow::Log& log) : m_log(log), m_window("settings", log) {}

  [[nodiscard]] FakeWindow& window() override { return m_window; }
  void show(std::optional<std::string_view> pane) override {
    m_log.push_back("settings show " + std::string(pane.value_or("the last pane")));
  }

 private:
  FakeWindow::Log& m_log;
  FakeWindow m_window;
};

}  // namespace testsupport
