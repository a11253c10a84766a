#pragma once

namespace keyboardshortcuts {

/// The place of a recorder in its window. Main thread.
class RecorderView {
 public:
  /// In points, from the top left corner of the window.
  struct Bounds {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
  };

  RecorderView() = default;
  RecorderView(const RecorderView&) = delete;
  RecorderView& operator=(const RecorderView&) = delete;
  virtual ~RecorderView() = default;

  [[nodiscard]] virtual Bounds bounds() const = 0;
  /// Asks for the focus. The recorder is told when it has come, which may be in a later turn, or never.
  virtual void takeFocus() = 0;
  /// Takes the focus away. The recorder is told before this returns.
  virtual void resignFocus() = 0;
};

}  // namespace keyboardshortcuts
