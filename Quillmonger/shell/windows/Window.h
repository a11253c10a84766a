#pragma once

#include "Quillmonger/shell/windows/WindowFrame.h"

namespace quillmonger {

/// One of the program's windows, built once and only shown and hidden from then on. Main thread.
class Window {
 public:
  Window() = default;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window() = default;

  [[nodiscard]] virtual bool isVisible() const = 0;
  [[nodiscard]] virtual WindowFrame frame() const = 0;
  /// Windows of a higher level stand above those of a lower one. 0 is that of ordinary windows.
  [[nodiscard]] virtual int level() const = 0;
  /// Places it in the middle of its screen: centred across, a little above the centre in height.
  virtual void center() = 0;
  /// Moves it to the left, as far as its screen goes, until `width` points are free between it and the screen's right
  /// edge. Nothing happens where they are.
  virtual void makeRoomAtRight(double width) = 0;
  /// Shows it and gives it the keyboard.
  virtual void makeKeyAndOrderFront() = 0;
  /// Takes it off the screen at once.
  virtual void orderOut() = 0;
};

}  // namespace quillmonger
