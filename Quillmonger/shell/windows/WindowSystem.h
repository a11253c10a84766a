#pragma once

#include <cstdint>
#include <optional>

namespace quillmonger {

/// What a window needs of the window system beyond what toolkits offer. Main thread.
class WindowSystem {
 public:
  /// The window system's own number of a window.
  using WindowId = std::uint64_t;

  /// A place on the desktop, in pixels.
  struct Pixel {
    int x = 0;
    int y = 0;
    bool operator==(const Pixel&) const = default;
  };

  WindowSystem() = default;
  WindowSystem(const WindowSystem&) = delete;
  WindowSystem& operator=(const WindowSystem&) = delete;
  virtual ~WindowSystem() = default;

  /// Whether what a window leaves transparent shows what is behind it, instead of black. It can change at any time.
  [[nodiscard]] virtual bool blendsTransparency() const = 0;
  /// The middle of the window that has the keyboard, of whatever program; absent when none has it, or the desktop
  /// itself.
  [[nodiscard]] virtual std::optional<Pixel> focusedWindowCentre() const = 0;
  /// Gives the window no entry in task list and pager. Before each time that it is shown.
  virtual void keepOutOfTaskList(WindowId window) = 0;
  /// Raises the shown window and gives it the keyboard, also past a window manager that guards the user's focus.
  virtual void bringToFront(WindowId window) = 0;
};

}  // namespace quillmonger
