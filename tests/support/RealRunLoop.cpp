#include "tests/support/RealRunLoop.h"

#include <algorithm>

namespace testsupport {

void RealRunLoop::post(Task task) {
  {
    const std::lock_guard lock(m_mutex);
    m_posted.push_back(std::move(task));
  }
  m_change.notify_one();
}

foundation::Subscription RealRunLoop::after(foundation::Seconds delay, Task task) {
  return schedule(std::chrono::duration_cast<Clock::duration>(delay), Clock::duration{0}, std::move(task));
}

foundation::Subscription RealRunLoop::every(foundation::Seconds interval, Task task) {
  const auto time = std::chrono::duration_cast<Clock::duration>(interval);
  return schedule(time, time, std::move(task));
}

foundation::Subscription RealRunLoop::schedule(Clock::duration delay, Clock::duration interval, Task task) {
  const auto timer = std::make_shared<Timer>(Timer{std::move(task), interval});
  m_timers->emplace(std::pair(Clock::now() + delay, m_nextTimer++), timer);
  return foundation::Subscription([timers = std::weak_ptr(m_timers), timer] {
    if (const auto present = timers.lock()) {
      std::erase_if(*present, [&timer](const auto& entry) { return entry.second == timer; });
    }
    timer->task = nullptr;
  });
}

bool RealRunLoop::runUntil(const std::function<bool()>& isDone, foundation::Seconds limit) {
  const auto end = Clock::now() + std::chrono::duration_cast<Clock::duration>(limit);
  bool result = false;
  for (;;) {
    runDue();
    runTimed([&] { result = isDone(); });
    if (result || Clock::now() >= end) return result;
    std::unique_lock lock(m_mutex);
    m_change.wait_for(lock, std::chrono::milliseconds(1), [this] { return !m_posted.empty(); });
  }
}

void RealRunLoop::runDue() {
  std::deque<Task> posted;
  {
    const std::lock_guard lock(m_mutex);
    posted.swap(m_posted);
  }
  for (const Task& task : posted)
    runTimed(task);
  while (!m_timers->empty() && m_timers->begin()->first.first <= Clock::now()) {
    const auto timer = m_timers->begin()->second;
    m_timers->erase(m_timers->begin());
    const Task task = timer->task;  // a copy: the task may end its own timer
    if (timer->interval > Clock::duration{0}) {
      m_timers->emplace(std::pair(Clock::now() + timer->interval, m_nextTimer++), timer);
    }
    runTimed(task);
  }
}

void RealRunLoop::runTimed(const Task& task) {
  const auto start = Clock::now();
  task();
  m_longestTurn = std::max(m_longestTurn, foundation::Seconds(Clock::now() - start));
}

}  // namespace testsupport
