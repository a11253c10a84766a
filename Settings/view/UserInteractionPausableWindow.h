#pragma once

#include <QObject>

class QWindow;

namespace settings {

/// Holds the mouse and the keys back from a window for a time. Main thread.
class UserInteractionPausableWindow final : public QObject {
 public:
  /// It belongs to `window` and goes with it.
  explicit UserInteractionPausableWindow(QWindow& window);

  /// True at first.
  [[nodiscard]] bool isUserInteractionEnabled() const { return m_isUserInteractionEnabled; }
  void setUserInteractionEnabled(bool isEnabled) { m_isUserInteractionEnabled = isEnabled; }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;

  bool m_isUserInteractionEnabled = true;
};

}  // namespace settings
