#include "Platform/qt/QtTerminationSignals.h"

#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <utility>

namespace platform {

QtTerminationSignals::QtTerminationSignals() {
  sigset_t ending;
  sigemptyset(&ending);
  for (const int signal : {SIGTERM, SIGINT, SIGHUP})
    sigaddset(&ending, signal);
  pthread_sigmask(SIG_BLOCK, &ending, nullptr);
  m_descriptor = signalfd(-1, &ending, SFD_CLOEXEC | SFD_NONBLOCK);
}

QtTerminationSignals::~QtTerminationSignals() { close(m_descriptor); }

void QtTerminationSignals::onTermination(std::function<void()> receiver) {
  m_notifier.emplace(m_descriptor, QSocketNotifier::Read);
  QObject::connect(&*m_notifier, &QSocketNotifier::activated, [this, receiver = std::move(receiver)] {
    signalfd_siginfo signal;
    while (read(m_descriptor, &signal, sizeof signal) == sizeof signal)
      receiver();
  });
}

}  // namespace platform
