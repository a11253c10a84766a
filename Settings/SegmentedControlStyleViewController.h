#pragma once

#include "Settings/SettingsStyleController.h"

namespace settings {

/// A toolbar with one control that has a segment for each pane, all equally wide. Main thread.
class SegmentedControlStyleViewController final : public SettingsStyleController {
 public:
  using SettingsStyleController::SettingsStyleController;

  [[nodiscard]] Style style() const override { return Style::segmentedControl; }
  [[nodiscard]] std::vector<ToolbarItem> toolbar() const override;
  [[nodiscard]] bool isKeepingWindowCentered() const override { return true; }
};

}  // namespace settings
