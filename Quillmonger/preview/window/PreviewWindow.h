#pragma once

#include <functional>

#include "Foundation/RunLoop.h"
#include "Quillmonger/shell/windows/Animation.h"
#include "Quillmonger/shell/windows/MotionPreference.h"
#include "Quillmonger/shell/windows/ObservableWindow.h"

namespace quillmonger {

/// The window that slides out from behind the right edge of the history and shows the selected item. It moves only
/// while it comes and goes: where the history goes meanwhile is nothing to it. Main thread.
class PreviewWindow final : public ObservableWindow {
 public:
  /// All outlive this object.
  PreviewWindow(Panel& panel, foundation::RunLoop& runLoop, const MotionPreference& motion)
      : ObservableWindow(panel), m_animation(runLoop, motion) {}

  /// Slides out beside `parent`, `padding` points from it, just under it, and takes its size. Nothing happens while it
  /// is up or moves. Returns at once.
  void show(const Window& parent, double padding);
  /// Slides behind the parent and goes. Nothing happens unless it is up and stands still. Returns at once.
  void hide();

  /// Whether it is coming or going.
  [[nodiscard]] bool isAnimating() const { return m_isAnimating; }

 private:
  void slide(foundation::Seconds duration, WindowFrame target, double targetAlpha,
             const std::function<void()>& completion);

  bool m_isAnimating = false;
  Animation m_animation;
};

}  // namespace quillmonger
