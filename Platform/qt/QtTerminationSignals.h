#pragma once

#include <QSocketNotifier>
#include <functional>
#include <optional>

namespace platform {

/// SIGTERM, SIGINT and SIGHUP as an ordinary event of the main thread. Made before any other thread is, since those
/// take over from it that they are not interrupted by them.
class QtTerminationSignals final {
 public:
  QtTerminationSignals();
  QtTerminationSignals(const QtTerminationSignals&) = delete;
  QtTerminationSignals& operator=(const QtTerminationSignals&) = delete;
  ~QtTerminationSignals();

  /// Calls `receiver` for each signal, also for one that came before. After the application object is made.
  void onTermination(std::function<void()> receiver);

 private:
  int m_descriptor;
  std::optional<QSocketNotifier> m_notifier;
};

}  // namespace platform
