#pragma once

#include "Quillmonger/shell/windows/Window.h"

namespace quillmonger {

/// A window that the program itself also moves, fades and stacks. Main thread.
class Panel : public Window {
 public:
  /// How much of its width, from the left, there is anything to see in.
  [[nodiscard]] virtual double paneWidth() = 0;
  /// Moves and sizes it at once.
  virtual void setFrame(const WindowFrame& frame) = 0;
  /// From 0, not to be seen, to 1. Without effect where the desktop blends nothing.
  virtual void setAlpha(double alpha) = 0;
  /// Takes effect the next time that it is shown.
  virtual void setLevel(int level) = 0;
  /// Shows it above the other programs' windows, and under those of this program whose level is higher. The keyboard
  /// stays where it is.
  virtual void orderFront() = 0;
};

}  // namespace quillmonger
