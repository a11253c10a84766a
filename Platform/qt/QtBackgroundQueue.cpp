#include "Platform/qt/QtBackgroundQueue.h"

#include <QSemaphore>
#include <QThread>
#include <algorithm>
#include <atomic>
#include <utility>

#include "Foundation/BackgroundThread.h"

namespace platform {

QtBackgroundQueue::QtBackgroundQueue() {
  // One more than there are processors: a work that waits in `concurrentPerform` takes part in it itself, but a second
  // short work must not wait for a long one on a machine with a single processor.
  m_pool.setMaxThreadCount(static_cast<int>(activeProcessorCount()) + 1);
}

QtBackgroundQueue::~QtBackgroundQueue() { m_pool.waitForDone(); }

void QtBackgroundQueue::async(std::function<void()> work) {
  m_pool.start([work = std::move(work)] {
    foundation::becomeBackgroundThread();
    work();
  });
}

void QtBackgroundQueue::concurrentPerform(std::size_t count, const std::function<void(std::size_t)>& work) {
  std::atomic<std::size_t> next = 0;
  const auto perform = [&next, &work, count] {
    for (std::size_t index = next++; index < count; index = next++)
      work(index);
  };
  QSemaphore finished;
  int helpers = 0;
  // Helpers only from free threads: waiting for a busy pool could wait for this very work.
  while (static_cast<std::size_t>(helpers) + 1 < std::min(count, activeProcessorCount()) &&
         m_pool.tryStart([&perform, &finished] {
           foundation::becomeBackgroundThread();
           perform();
           finished.release();
         })) {
    ++helpers;
  }
  perform();
  finished.acquire(helpers);
}

std::size_t QtBackgroundQueue::activeProcessorCount() const {
  return static_cast<std::size_t>(std::max(QThread::idealThreadCount(), 1));
}

}  // namespace platform
