#pragma once

namespace quillmonger {

/// Where a window stands on the desktop, and its size, in points: pixels at a scale of one. `bottom` is the height of
/// its lower edge on the screen, counted as the window system counts.
struct WindowFrame {
  double left = 0;
  double bottom = 0;
  double width = 0;
  double height = 0;

  bool operator==(const WindowFrame&) const = default;
};

}  // namespace quillmonger
