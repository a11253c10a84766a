#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <utility>
#include <vector>

#include "Foundation/BackgroundQueue.h"

namespace testsupport {

/// A background queue on the test's own thread: work waits until the test runs it. Main thread.
class InlineBackgroundQueue final : public foundation::BackgroundQueue {
 public:
  explicit InlineBackgroundQueue(std::size_t processorCount = 2) : m_processorCount(processorCount) {}

  void async(std::function<void()> work) override { m_waiting.push_back(std::move(work)); }
  void concurrentPerform(std::size_t count, const std::function<void(std::size_t)>& work) override {
    m_performedCounts.push_back(count);
    for (std::size_t index = 0; index < count; ++index)
      work(index);
  }
  [[nodiscard]] std::size_t activeProcessorCount() const override { return m_processorCount; }

  /// Runs everything that waits, in its order.
  void run() {
    while (!m_waiting.empty()) {
      const auto work = std::move(m_waiting.front());
      m_waiting.pop_front();
      work();
    }
  }
  /// Runs the work that came last, before what still waits: as if it had overtaken it.
  void runLast() {
    const auto work = std::move(m_waiting.back());
    m_waiting.pop_back();
    work();
  }
  /// The count of each `concurrentPerform`, oldest first.
  [[nodiscard]] const std::vector<std::size_t>& performedCounts() const { return m_performedCounts; }

 private:
  std::size_t m_processorCount;
  std::deque<std::function<void()>> m_waiting;
  std::vector<std::size_t> m_performedCounts;
};

}  // namespace testsupport
