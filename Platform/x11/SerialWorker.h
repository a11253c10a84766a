#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <queue>
#include <thread>

namespace platform {

/// A thread that does one work after the other: what takes long, and must not keep the clipboard's connection from
/// the next owner.
class SerialWorker final {
 public:
  using Task = std::function<void()>;

  SerialWorker() = default;
  SerialWorker(const SerialWorker&) = delete;
  SerialWorker& operator=(const SerialWorker&) = delete;
  /// Waits for the work in hand, and drops the rest.
  ~SerialWorker();

  /// From any thread.
  void run(Task task);

 private:
  void loop();

  std::mutex m_mutex;  // guards the tasks and the end
  std::condition_variable m_change;
  std::queue<Task> m_tasks;
  bool m_isEnding = false;
  std::thread m_thread{[this] { loop(); }};
};

}  // namespace platform
