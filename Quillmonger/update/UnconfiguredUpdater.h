#pragma once

#include "Quillmonger/update/Updater.h"

namespace quillmonger {

/// The updater of a build without an update feed: there is nowhere to ask, so nobody can.
class UnconfiguredUpdater final : public Updater {
 public:
  [[nodiscard]] bool hasFeed() const override { return false; }
  void startUpdater() override {}
  [[nodiscard]] foundation::Published<bool>& canCheckForUpdates() override { return m_canCheckForUpdates; }
  void checkForUpdates() override {}

 private:
  foundation::Published<bool> m_canCheckForUpdates{false};
};

}  // namespace quillmonger
