#pragma once

#include <QThreadPool>

#include "Foundation/BackgroundQueue.h"

namespace platform {

/// Work on a pool of threads, which is empty until there is work and again some time after it. Any thread.
class QtBackgroundQueue final : public foundation::BackgroundQueue {
 public:
  QtBackgroundQueue();
  QtBackgroundQueue(const QtBackgroundQueue&) = delete;
  QtBackgroundQueue& operator=(const QtBackgroundQueue&) = delete;
  /// Waits until all work is done.
  ~QtBackgroundQueue() override;

  void async(std::function<void()> work) override;
  void concurrentPerform(std::size_t count, const std::function<void(std::size_t)>& work) override;
  [[nodiscard]] std::size_t activeProcessorCount() const override;

 private:
  QThreadPool m_pool;
};

}  // namespace platform
