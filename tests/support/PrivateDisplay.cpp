#include "tests/support/PrivateDisplay.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

namespace testsupport {

namespace {

constexpr int startLimit = 30'000;  // milliseconds; a loaded machine takes its time

// The server writes its number and a line end when it is ready.
std::string readNumber(int pipe) {
  std::string number;
  for (;;) {
    pollfd source{pipe, POLLIN, 0};
    char character = 0;
    if (poll(&source, 1, startLimit) <= 0 || read(pipe, &character, 1) != 1) {
      throw std::runtime_error("the test's X server did not start");
    }
    if (character == '\n') return number;
    number.push_back(character);
  }
}

}  // namespace

PrivateDisplay::PrivateDisplay() {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("can't make a pipe");
  const std::string descriptor = std::to_string(ends[1]);
  m_process = fork();
  if (m_process == 0) {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    fcntl(ends[1], F_SETFD, 0);
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDERR_FILENO);
    execlp("Xvfb", "Xvfb", "-displayfd", descriptor.c_str(), "-screen", "0", "640x480x24", "-nolisten", "tcp",
           "-noreset", nullptr);
    _exit(127);
  }
  close(ends[1]);
  try {
    m_name = ":" + readNumber(ends[0]);
  } catch (...) {
    close(ends[0]);
    throw;
  }
  close(ends[0]);
}

PrivateDisplay::~PrivateDisplay() {
  kill(m_process, SIGTERM);
  waitpid(m_process, nullptr, 0);
}

}  // namespace testsupport
