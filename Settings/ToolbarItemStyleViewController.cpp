#include "Settings/ToolbarItemStyleViewController.h"

namespace settings {

std::vector<ToolbarItem> ToolbarItemStyleViewController::toolbar() const {
  std::vector<ToolbarItem> items;
  for (const auto& pane : panes())
    items.push_back({pane->paneIdentifier().rawValue, pane->paneTitle(), pane->toolbarItemIcon()});
  return items;
}

}  // namespace settings
