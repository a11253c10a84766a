#include "Platform/qt/XdgOpen.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <optional>
#include <string>
#include <thread>
#include <utility>

// Some versions of this header don't say that it is C.
extern "C" {
#include <sys/pidfd.h>
}

namespace platform {

namespace {

// In a session of its own, and heard by nobody: what it says is not this program's.
std::optional<pid_t> start(const std::string& address) {
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  for (const int file : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    posix_spawn_file_actions_addopen(&files, file, "/dev/null", O_RDWR, 0);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  // This program doesn't mind a broken pipe; what others start rely on it.
  sigset_t defaults;
  sigemptyset(&defaults);
  sigaddset(&defaults, SIGPIPE);
  posix_spawnattr_setsigdefault(&attributes, &defaults);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF);

  std::string program = "xdg-open";
  std::string argument = address;
  char* const words[] = {program.data(), argument.data(), nullptr};
  pid_t process = 0;
  const int error = posix_spawnp(&process, program.c_str(), &files, &attributes, words, environ);
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&files);
  return error == 0 ? std::optional(process) : std::nullopt;
}

bool hasSucceeded(pid_t ended) {
  int status = 0;
  return waitpid(ended, &status, 0) == ended && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

bool xdgOpen(const foundation::Url& url, std::function<void()> failed) {
  const auto process = start(url.absoluteString());
  if (!process) return false;
  const int end = pidfd_open(*process, 0);
  if (end < 0) {
    // Unwatched, but not left behind as a zombie.
    std::thread([process] { waitpid(*process, nullptr, 0); }).detach();
    return true;
  }
  auto* watch = new QSocketNotifier(end, QSocketNotifier::Read, qApp);
  QObject::connect(watch, &QSocketNotifier::activated, watch, [watch, end, process, failed = std::move(failed)] {
    if (!hasSucceeded(*process)) QMetaObject::invokeMethod(qApp, failed, Qt::QueuedConnection);
    watch->setEnabled(false);
    watch->deleteLater();
    ::close(end);
  });
  return true;
}

}  // namespace platform
