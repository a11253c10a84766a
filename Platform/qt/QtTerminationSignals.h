#pragma once

#include <QSocketNotifier>
#include <functional>

namespace platform {

/// SIGTERM, SIGINT and SIGHUP as an ordinary event of the main thread, as long as this object lives. Before and after
/// it they end the process at once. One at a time; made after the application object.
class QtTerminationSignals final {
 public:
  explicit QtTerminationSignals(std::function<void()> receiver);
  QtTerminationSignals(const QtTerminationSignals&) = delete;
  QtTerminationSignals& operator=(const QtTerminationSignals&) = delete;
  ~QtTerminationSignals();

 private:
  QSocketNotifier m_notifier;
};

}  // namespace platform
