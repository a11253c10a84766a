#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// What /proc tells of a process. Only `startTime` is the system's word; the rest is the process's own. Any thread.
struct ProcessFacts {
  /// Tells a process from a later one with the same number.
  std::uint64_t startTime = 0;
  /// The program's path; empty when it may not be known.
  std::string executable;
  /// The first words of its command line.
  std::vector<std::string> arguments;
  /// The application ID of a Flatpak; empty for any other.
  std::string flatpakId;
  /// "name_application" of a Snap; empty for any other.
  std::string snapId;

  /// Absent when there is no such process.
  [[nodiscard]] static std::optional<ProcessFacts> read(pid_t process, const std::filesystem::path& proc = "/proc");
  /// `startTime` alone.
  [[nodiscard]] static std::optional<std::uint64_t> readStartTime(pid_t process,
                                                                  const std::filesystem::path& proc = "/proc");
};

/// "name_application" of the first Snap scope that a /proc/PID/cgroup names; empty without one.
[[nodiscard]] std::string snapIdOfCgroup(std::string_view text);

}  // namespace platform
