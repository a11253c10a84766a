#pragma once

namespace settings {

/// In points: pixels at a scale of one.
struct Size {
  double width = 0;
  double height = 0;

  bool operator==(const Size&) const = default;
};

/// Where a window stands on the desktop; `top` counts downwards.
struct Frame {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  bool operator==(const Frame&) const = default;
};

}  // namespace settings
