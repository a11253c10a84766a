#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>

namespace platform {

/// What a window says of the application that it belongs to. Any program can claim anything here.
struct WindowIdentity {
  /// The display server's number of the window.
  std::uint32_t window = 0;
  /// Absent when the window doesn't tell, and for a window of another machine.
  std::optional<pid_t> processId;
  /// The two parts of WM_CLASS; empty when the window has none.
  std::string instanceName;
  std::string className;
};

}  // namespace platform
