#pragma once

#include <cstddef>
#include <functional>
#include <thread>
#include <utility>
#include <vector>

#include "Foundation/BackgroundQueue.h"

namespace testsupport {

/// A background queue on threads of its own, so that a sanitizer sees what really happens side by side.
class ThreadedBackgroundQueue final : public foundation::BackgroundQueue {
 public:
  void async(std::function<void()> work) override { m_threads.emplace_back(std::move(work)); }
  void concurrentPerform(std::size_t count, const std::function<void(std::size_t)>& work) override {
    std::vector<std::jthread> threads;
    for (std::size_t index = 0; index < count; ++index)
      threads.emplace_back([&work, index] { work(index); });
  }
  [[nodiscard]] std::size_t activeProcessorCount() const override { return 2; }

  /// Returns when everything that was started is done. On the thread that starts it.
  void wait() { m_threads.clear(); }

 private:
  std::vector<std::jthread> m_threads;
};

}  // namespace testsupport
