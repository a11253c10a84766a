#pragma once

#include <functional>

#include "Foundation/Subscription.h"
#include "Quillmonger/input/KeyEvent.h"

namespace quillmonger {

/// Shows the key events of the application to monitors before its windows see them. Main thread.
class LocalEventMonitoring {
 public:
  enum class Disposition : bool { pass, swallow };
  using Handler = std::function<Disposition(const KeyEvent&)>;

  LocalEventMonitoring() = default;
  LocalEventMonitoring(const LocalEventMonitoring&) = delete;
  LocalEventMonitoring& operator=(const LocalEventMonitoring&) = delete;
  virtual ~LocalEventMonitoring() = default;

  /// Every `keyDown` and `flagsChanged` event goes to each monitor, in the order in which they were added, until one
  /// swallows it. The monitor ends with the hold.
  virtual foundation::Subscription addLocalMonitor(Handler handler) = 0;
};

}  // namespace quillmonger
