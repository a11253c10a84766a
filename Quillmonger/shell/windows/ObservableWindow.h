#pragma once

#include <functional>

#include "Quillmonger/shell/windows/Panel.h"

namespace quillmonger {

/// A panel that tells when it is put on the screen and taken off. Main thread.
class ObservableWindow {
 public:
  /// `panel` outlives this object.
  explicit ObservableWindow(Panel& panel) : m_panel(panel) {}
  ObservableWindow(const ObservableWindow&) = delete;
  ObservableWindow& operator=(const ObservableWindow&) = delete;
  virtual ~ObservableWindow() = default;

  /// Called with true after each `orderFront` and with false after each `orderOut`, also where the window was so
  /// already. Other ways of coming and going are not told.
  std::function<void(bool isVisible)> visibilityChanged;

  [[nodiscard]] bool isVisible() const { return m_panel.isVisible(); }
  void orderFront();
  void orderOut();

 protected:
  [[nodiscard]] Panel& panel() { return m_panel; }

 private:
  Panel& m_panel;
};

}  // namespace quillmonger
