#pragma once

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include "Foundation/RunLoop.h"

/// A main queue that the benchmark turns by hand, and that knows how long its longest turn took.
class BenchRunLoop final : public foundation::RunLoop {
 public:
  using Milliseconds = std::chrono::duration<double, std::milli>;

  void post(Task task) override {
    const std::lock_guard lock(m_mutex);
    m_posted.push_back(std::move(task));
    m_change.notify_one();
  }
  /// Waits for `runDelayed`.
  foundation::Subscription after(foundation::Seconds /*delay*/, Task task) override {
    m_delayed.push_back(std::move(task));
    return {};
  }
  foundation::Subscription every(foundation::Seconds /*interval*/, Task /*task*/) override { return {}; }
  [[nodiscard]] foundation::Date date() const override { return {}; }

  /// Waits for the next task that is posted, and runs it.
  void runNext() {
    std::unique_lock lock(m_mutex);
    m_change.wait(lock, [this] { return !m_posted.empty(); });
    Task task = std::move(m_posted.front());
    m_posted.pop_front();
    lock.unlock();
    runTimed(std::move(task));
  }
  void runUntil(const std::function<bool()>& isDone) {
    while (!isDone())
      runNext();
  }
  void runDelayed() {
    for (Task& task : std::exchange(m_delayed, {}))
      runTimed(std::move(task));
  }

  [[nodiscard]] Milliseconds longestTurn() const { return m_longestTurn; }
  void forgetLongestTurn() { m_longestTurn = {}; }

 private:
  void runTimed(Task task) {
    const auto start = std::chrono::steady_clock::now();
    task();
    task = nullptr;  // what it held may be much
    m_longestTurn = std::max<Milliseconds>(m_longestTurn, std::chrono::steady_clock::now() - start);
  }

  std::mutex m_mutex;
  std::condition_variable m_change;
  std::deque<Task> m_posted;
  std::vector<Task> m_delayed;
  Milliseconds m_longestTurn{};
};
