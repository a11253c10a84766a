#pragma once

#include "Foundation/Published.h"

namespace quillmonger {

/// Looks for new versions of the program. Its two switches are the settings of UpdaterKeys.h, which it follows. Main
/// thread.
class Updater {
 public:
  Updater() = default;
  Updater(const Updater&) = delete;
  Updater& operator=(const Updater&) = delete;
  virtual ~Updater() = default;

  /// Whether this program has a place to ask. Without one, the switches have no effect.
  [[nodiscard]] virtual bool hasFeed() const = 0;
  /// Starts the scheduled checks: before that, none is made that nobody asked for. At most once.
  virtual void startUpdater() = 0;
  /// Whether the user may ask for a check now: not while one is under way, and never without a place to ask.
  [[nodiscard]] virtual foundation::Published<bool>& canCheckForUpdates() = 0;
  /// A check that the user asked for, with windows of the updater's own. Only while a check can be made.
  virtual void checkForUpdates() = 0;
};

}  // namespace quillmonger
