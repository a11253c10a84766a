#include "Settings/SegmentedControlStyleViewController.h"

namespace settings {

std::vector<ToolbarItem> SegmentedControlStyleViewController::toolbar() const {
  std::vector<ToolbarItem> segments;
  for (const auto& pane : panes())
    segments.push_back({"segment-" + std::to_string(segments.size()), pane->paneTitle(), {}});
  return segments;
}

}  // namespace settings
