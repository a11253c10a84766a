#include "tests/support/VirtualRunLoop.h"

#include <chrono>

namespace testsupport {

void VirtualRunLoop::post(Task task) {
  const std::lock_guard lock(m_mutex);
  m_posted.push_back(std::move(task));
}

foundation::Subscription VirtualRunLoop::after(foundation::Seconds delay, Task task) {
  return schedule(std::chrono::duration_cast<Time>(delay), Time{0}, std::move(task));
}

foundation::Subscription VirtualRunLoop::every(foundation::Seconds interval, Task task) {
  const auto time = std::chrono::duration_cast<Time>(interval);
  return schedule(time, time, std::move(task));
}

foundation::Date VirtualRunLoop::startDate() {
  using namespace std::chrono;
  return sys_days{2026y / January / 1} + 12h;
}

foundation::Date VirtualRunLoop::date() const {
  return startDate() + std::chrono::duration_cast<foundation::Date::duration>(m_now);
}

foundation::Subscription VirtualRunLoop::schedule(Time delay, Time interval, Task task) {
  const auto timer = std::make_shared<Timer>(Timer{std::move(task), interval});
  m_timers->emplace(std::pair(m_now + delay, m_nextTimer++), timer);
  return foundation::Subscription([timers = std::weak_ptr(m_timers), timer] {
    if (const auto present = timers.lock()) {
      std::erase_if(*present, [&timer](const auto& entry) { return entry.second == timer; });
    }
    timer->task = nullptr;
  });
}

void VirtualRunLoop::runPosted() {
  for (;;) {
    Task task;
    {
      const std::lock_guard lock(m_mutex);
      if (m_posted.empty()) return;
      task = std::move(m_posted.front());
      m_posted.pop_front();
    }
    task();
  }
}

void VirtualRunLoop::advance(foundation::Seconds time) {
  const Time end = m_now + std::chrono::duration_cast<Time>(time);
  runPosted();
  while (!m_timers->empty() && m_timers->begin()->first.first <= end) {
    const auto next = m_timers->begin();
    const auto timer = next->second;
    m_now = next->first.first;
    m_timers->erase(next);
    if (timer->interval > Time{0}) m_timers->emplace(std::pair(m_now + timer->interval, m_nextTimer++), timer);
    const Task task = timer->task;  // a copy: the task may end its own timer
    task();
    runPosted();
  }
  m_now = end;
}

}  // namespace testsupport
