#pragma once

#include "Settings/SettingsStyleController.h"

namespace settings {

/// A toolbar with an item for each pane. Main thread.
class ToolbarItemStyleViewController final : public SettingsStyleController {
 public:
  enum class Placement { leading, centered };

  /// `panes` outlives this object.
  ToolbarItemStyleViewController(const Panes& panes, Placement centerToolbarItems)
      : SettingsStyleController(panes), m_centerToolbarItems(centerToolbarItems) {}

  [[nodiscard]] Style style() const override { return Style::toolbarItems; }
  [[nodiscard]] std::vector<ToolbarItem> toolbar() const override;
  [[nodiscard]] bool isKeepingWindowCentered() const override { return m_centerToolbarItems == Placement::centered; }

 private:
  Placement m_centerToolbarItems;
};

}  // namespace settings
