#include "Platform/x11/SerialWorker.h"

#include <utility>

namespace platform {

SerialWorker::~SerialWorker() {
  {
    const std::lock_guard lock(m_mutex);
    m_isEnding = true;
  }
  m_change.notify_one();
  m_thread.join();
}

void SerialWorker::run(Task task) {
  {
    const std::lock_guard lock(m_mutex);
    m_tasks.push(std::move(task));
  }
  m_change.notify_one();
}

void SerialWorker::loop() {
  for (;;) {
    Task task;
    {
      std::unique_lock lock(m_mutex);
      m_change.wait(lock, [this] { return m_isEnding || !m_tasks.empty(); });
      if (m_isEnding) return;
      task = std::move(m_tasks.front());
      m_tasks.pop();
    }
    task();
  }
}

}  // namespace platform
