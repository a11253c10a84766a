#pragma once

#include <string>

#include "Settings/Pane.h"

namespace settings {

/// What the toolbar needs to know of a pane. Main thread.
class SettingsPane {
 public:
  SettingsPane() = default;
  SettingsPane(const SettingsPane&) = delete;
  SettingsPane& operator=(const SettingsPane&) = delete;
  virtual ~SettingsPane() = default;

  [[nodiscard]] virtual const PaneIdentifier& paneIdentifier() const = 0;
  [[nodiscard]] virtual const std::string& paneTitle() const = 0;
  [[nodiscard]] virtual const ToolbarIcon& toolbarItemIcon() const = 0;
};

}  // namespace settings
