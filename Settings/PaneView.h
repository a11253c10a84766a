#pragma once

#include <functional>

#include "Settings/Frame.h"

namespace settings {

/// What a pane shows, as the window needs it. Main thread.
class PaneView {
 public:
  PaneView() = default;
  PaneView(const PaneView&) = delete;
  PaneView& operator=(const PaneView&) = delete;
  virtual ~PaneView() = default;

  /// As much room as it wants. Loads it when it is first asked for.
  [[nodiscard]] virtual Size fittingSize() = 0;
  /// From 0, where it takes no input either, to 1. It stands at 0 before the first call.
  virtual void setAlpha(double alpha) = 0;
  /// `changed` is called when the loaded view wants another size than it did. At most one such function.
  virtual void onFittingSizeChanged(std::function<void()> changed) = 0;
};

}  // namespace settings
