#include "Platform/qt/QtTerminationSignals.h"

#include <signal.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>
#include <utility>

namespace platform {

namespace {

constexpr int endingSignals[] = {SIGTERM, SIGINT, SIGHUP};

// Known to the handler, which may do little more than write to it.
int wakeUp = -1;

void handle(int /*signal*/) {
  const std::uint64_t one = 1;
  [[maybe_unused]] const auto written = write(wakeUp, &one, sizeof one);
}

// A handler rather than a blocked signal: programs that are started from here must not inherit it.
void setHandler(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  for (const int signal : endingSignals)
    sigaction(signal, &action, nullptr);
}

int openWakeUp() {
  wakeUp = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  return wakeUp;
}

}  // namespace

QtTerminationSignals::QtTerminationSignals(std::function<void()> receiver)
    : m_notifier(openWakeUp(), QSocketNotifier::Read) {
  QObject::connect(&m_notifier, &QSocketNotifier::activated, [receiver = std::move(receiver)] {
    std::uint64_t count = 0;
    if (read(wakeUp, &count, sizeof count) == sizeof count) receiver();
  });
  setHandler(handle);
}

QtTerminationSignals::~QtTerminationSignals() {
  setHandler(SIG_DFL);
  close(wakeUp);
}

}  // namespace platform
