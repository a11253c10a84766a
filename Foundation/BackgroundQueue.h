#pragma once

#include <cstddef>
#include <functional>

namespace foundation {

/// Work beside the main thread. Any thread may call it.
class BackgroundQueue {
 public:
  BackgroundQueue() = default;
  BackgroundQueue(const BackgroundQueue&) = delete;
  BackgroundQueue& operator=(const BackgroundQueue&) = delete;
  virtual ~BackgroundQueue() = default;

  /// Runs `work` on another thread, soon; returns at once. Works of several calls may overlap.
  virtual void async(std::function<void()> work) = 0;
  /// Runs `work` once for each index from 0 to `count - 1`, on several threads, and returns when all are done.
  /// Only from within work of this queue.
  virtual void concurrentPerform(std::size_t count, const std::function<void(std::size_t)>& work) = 0;
  /// How many processors are usable; at least 1.
  [[nodiscard]] virtual std::size_t activeProcessorCount() const = 0;
};

}  // namespace foundation
