#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include "Foundation/RunLoop.h"

namespace testsupport {

/// A run loop on real time, for tests against other processes: they run it until what they wait for has come.
class RealRunLoop final : public foundation::RunLoop {
 public:
  void post(Task task) override;
  foundation::Subscription after(foundation::Seconds delay, Task task) override;
  foundation::Subscription every(foundation::Seconds interval, Task task) override;
  [[nodiscard]] foundation::Date date() const override { return std::chrono::system_clock::now(); }

  /// Runs what comes until `isDone`, which is asked every millisecond; false when it isn't within `limit`.
  [[nodiscard]] bool runUntil(const std::function<bool()>& isDone, foundation::Seconds limit = foundation::Seconds(10));
  /// The longest time that one task or one `isDone` took: for so long the loop stood still.
  [[nodiscard]] foundation::Seconds longestTurn() const { return m_longestTurn; }

 private:
  using Clock = std::chrono::steady_clock;
  struct Timer {
    Task task;
    Clock::duration interval;  // zero for one that fires once
  };
  using Timers = std::map<std::pair<Clock::time_point, std::uint64_t>, std::shared_ptr<Timer>>;

  foundation::Subscription schedule(Clock::duration delay, Clock::duration interval, Task task);
  void runDue();
  void runTimed(const Task& task);

  std::mutex m_mutex;  // guards m_posted, since posting comes from any thread
  std::condition_variable m_change;
  std::deque<Task> m_posted;
  std::shared_ptr<Timers> m_timers = std::make_shared<Timers>();
  std::uint64_t m_nextTimer = 0;
  foundation::Seconds m_longestTurn{0};
};

}  // namespace testsupport
