#pragma once

#include <utility>

#include "Settings/SettingsPane.h"

namespace settings {

/// Holds a pane for as long as the window lives. Main thread.
class PaneHostingController final : public SettingsPane {
 public:
  explicit PaneHostingController(Pane pane) : m_pane(std::move(pane)) {}

  [[nodiscard]] const PaneIdentifier& paneIdentifier() const override { return m_pane.identifier; }
  [[nodiscard]] const std::string& paneTitle() const override { return m_pane.title; }
  [[nodiscard]] const ToolbarIcon& toolbarItemIcon() const override { return m_pane.toolbarIcon; }
  [[nodiscard]] PaneView& view() const { return *m_pane.content; }

 private:
  Pane m_pane;
};

}  // namespace settings
