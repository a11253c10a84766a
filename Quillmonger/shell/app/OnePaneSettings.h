#pragma once

#include "Quillmonger/shell/windows/SettingsWindowController.h"

namespace quillmonger {

/// Settings of a single pane, which is shown whichever one is asked for. The window stays where the user left it while
/// it is up, and comes in the middle of the screen otherwise. Main thread.
class OnePaneSettings final : public SettingsWindowController {
 public:
  /// `window` outlives this object.
  explicit OnePaneSettings(Window& window) : m_window(window) {}

  [[nodiscard]] Window& window() override { return m_window; }
  void show(std::optional<std::string_view> /*pane*/) override {
    if (!m_window.isVisible()) m_window.center();
  }

 private:
  Window& m_window;
};

}  // namespace quillmonger
