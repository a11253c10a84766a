#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "Quillmonger/settings/panes/AppPicker.h"

namespace testsupport {

/// A picker without a window: the test is the user.
class FakeAppPicker final : public quillmonger::AppPicker {
 public:
  void pickApplication(Completion completion) override { m_waiting.push_back(std::move(completion)); }

  /// Decides everything that was asked for.
  void decide(const std::optional<foundation::Url>& location) {
    for (const auto& completion : std::exchange(m_waiting, {}))
      completion(location);
  }

 private:
  std::vector<Completion> m_waiting;
};

}  // namespace testsupport
