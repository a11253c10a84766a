#pragma once

#include "KeyboardShortcuts/RecorderCocoa.h"

namespace testsupport {

/// A place for a recorder without a window, which grants the focus at once.
class FakeRecorderView final : public keyboardshortcuts::RecorderView {
 public:
  [[nodiscard]] Bounds bounds() const override { return {100, 50, 130, 24}; }
  void takeFocus() override { m_hasFocus = m_recorder != nullptr && m_recorder->becomeFirstResponder(); }
  void resignFocus() override {
    m_hasFocus = false;
    if (m_recorder != nullptr) m_recorder->controlTextDidEndEditing();
  }

  [[nodiscard]] bool hasFocus() const { return m_hasFocus; }
  void show(keyboardshortcuts::RecorderCocoa* recorder) { m_recorder = recorder; }

 private:
  keyboardshortcuts::RecorderCocoa* m_recorder = nullptr;
  bool m_hasFocus = false;
};

}  // namespace testsupport
