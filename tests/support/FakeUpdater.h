#pragma once

#include <functional>

#include "Quillmonger/update/Updater.h"

namespace testsupport {

/// An updater that only counts what it is asked.
class FakeUpdater final : public quillmonger::Updater {
 public:
  [[nodiscard]] bool hasFeed() const override { return true; }
  void startUpdater() override { ++startCount; }
  [[nodiscard]] foundation::Published<bool>& canCheckForUpdates() override { return m_canCheckForUpdates; }
  void checkForUpdates() override {
    if (onCheck) onCheck();
  }

  /// Runs at each check.
  std::function<void()> onCheck;
  /// How often it was started.
  int startCount = 0;

 private:
  foundation::Published<bool> m_canCheckForUpdates{false};
};

}  // namespace testsupport
