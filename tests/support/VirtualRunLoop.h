#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include "Foundation/RunLoop.h"

namespace testsupport {

/// A run loop whose time stands still until the test moves it: "0.15 s later" happens at once and exactly.
class VirtualRunLoop final : public foundation::RunLoop {
 public:
  void post(Task task) override;
  foundation::Subscription after(foundation::Seconds delay, Task task) override;
  foundation::Subscription every(foundation::Seconds interval, Task task) override;
  [[nodiscard]] foundation::Date date() const override;

  /// Runs everything posted, also what that posts, without moving the time.
  void runPosted();
  /// Moves the time, running each timer that falls due on the way in the order of their moments, and everything posted.
  void advance(foundation::Seconds time);

  /// The moment at which the time stands when the loop is made.
  [[nodiscard]] static foundation::Date startDate();

 private:
  using Time = std::chrono::nanoseconds;
  struct Timer {
    Task task;
    Time interval;  // zero for one that fires once
  };
  foundation::Subscription schedule(Time delay, Time interval, Task task);

  std::mutex m_mutex;  // posting comes from any thread
  std::deque<Task> m_posted;
  std::shared_ptr<std::map<std::pair<Time, std::uint64_t>, std::shared_ptr<Timer>>> m_timers =
      std::make_shared<std::map<std::pair<Time, std::uint64_t>, std::shared_ptr<Timer>>>();
  Time m_now{0};
  std::uint64_t m_nextTimer = 0;
};

}  // namespace testsupport
