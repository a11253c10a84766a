#pragma once

#include "Foundation/Published.h"

namespace quillmonger {

/// Looks for new versions of the program. Main thread.
class Updater {
 public:
  Updater() = default;
  Updater(const Updater&) = delete;
  Updater& operator=(const Updater&) = delete;
  virtual ~Updater() = default;

  /// Whether the user may ask for a check now: not while one is under way, and never without a place to ask.
  [[nodiscard]] virtual foundation::Published<bool>& canCheckForUpdates() = 0;
  /// A check that the user asked for, with windows of the updater's own. Only while a check can be made.
  virtual void checkForUpdates() = 0;
};

}  // namespace quillmonger
