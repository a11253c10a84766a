#pragma once

#include <utility>
#include <vector>

#include "Foundation/AlertSheet.h"

namespace testsupport {

/// A question without a window: the test is the user.
class FakeAlertSheet final : public foundation::AlertSheet {
 public:
  void begin(Content content, Completion completion) override {
    m_shown.push_back(std::move(content));
    m_waiting.push_back(std::move(completion));
  }

  /// Every question so far.
  [[nodiscard]] const std::vector<Content>& shown() const { return m_shown; }
  [[nodiscard]] bool isUp() const { return !m_waiting.empty(); }
  /// Presses the button of the questions that are up.
  void answer(std::size_t button) {
    for (const auto& completion : std::exchange(m_waiting, {}))
      completion(button);
  }
  /// As Escape does.
  void cancel() { answer(foundation::cancelButton(m_shown.back())); }

 private:
  std::vector<Content> m_shown;
  std::vector<Completion> m_waiting;
};

}  // namespace testsupport
