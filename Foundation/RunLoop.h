#pragma once

#include <chrono>
#include <functional>

#include "Foundation/Subscription.h"

namespace foundation {

using Seconds = std::chrono::duration<double>;
/// A moment of the calendar, as records keep it.
using Date = std::chrono::system_clock::time_point;

/// The main queue and its time. The program runs it on the toolkit's event loop, the tests on a clock of their own.
class RunLoop {
 public:
  using Task = std::function<void()>;

  RunLoop() = default;
  RunLoop(const RunLoop&) = delete;
  RunLoop& operator=(const RunLoop&) = delete;
  virtual ~RunLoop() = default;

  /// Runs `task` on the main thread in a later turn, after everything that was posted before it. From any thread.
  virtual void post(Task task) = 0;

  /// Runs `task` once, `delay` from now, unless the hold is gone by then. Main thread only.
  virtual Subscription after(Seconds delay, Task task) = 0;

  /// Runs `task` at each `interval` from now on, until the hold is gone. A late tick is not made up for: the next one
  /// comes at the next multiple of the interval. Main thread only.
  virtual Subscription every(Seconds interval, Task task) = 0;

  /// The present moment of the calendar. Main thread only.
  [[nodiscard]] virtual Date date() const = 0;
};

}  // namespace foundation
