#pragma once

#include <optional>
#include <string_view>

#include "Quillmonger/shell/windows/Window.h"

namespace quillmonger {

/// The settings window with its panes. Main thread.
class SettingsWindowController {
 public:
  SettingsWindowController() = default;
  SettingsWindowController(const SettingsWindowController&) = delete;
  SettingsWindowController& operator=(const SettingsWindowController&) = delete;
  virtual ~SettingsWindowController() = default;

  [[nodiscard]] virtual Window& window() = 0;
  /// Puts the pane with this identifier, or the one last shown, into the window, and the window in its place. The
  /// window itself is shown by whoever asks.
  virtual void show(std::optional<std::string_view> pane) = 0;
};

}  // namespace quillmonger
