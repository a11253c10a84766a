#pragma once

#include <functional>

#include "Quillmonger/shell/Updater.h"

namespace testsupport {

/// An updater that only counts what it is asked.
class FakeUpdater final : public quillmonger::Updater {
 public:
  [[nodiscard]] foundation::Published<bool>& canCheckForUpdates() override { return m_canCheckForUpdates; }
  void checkForUpdates() override {
    if (onCheck) onCheck();
  }

  /// Runs at each check.
  std::function<void()> onCheck;

 private:
  foundation::Published<bool> m_canCheckForUpdates{false};
};

}  // namespace testsupport
