#include "Quillmonger/shell/client/StartedApplication.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <unistd.h>

#include <array>
#include <string>

namespace quillmonger {

std::optional<std::filesystem::path> applicationBeside(const std::filesystem::path& command) {
  const auto folder = command.parent_path();
  for (const auto& path : {folder / "quillmonger-app", folder.parent_path() / "libexec/quillmonger/quillmonger-app"}) {
    if (access(path.c_str(), X_OK) == 0) return path;
  }
  return std::nullopt;
}

bool startDetached(const std::filesystem::path& program) {
  posix_spawn_file_actions_t actions;
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_init(&actions);
  posix_spawnattr_init(&attributes);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
  std::string name = program.string();
  const std::array<char*, 2> arguments{name.data(), nullptr};
  pid_t process = 0;
  const int error = posix_spawn(&process, program.c_str(), &actions, &attributes, arguments.data(), environ);
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&actions);
  return error == 0;
}

}  // namespace quillmonger
