#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>

namespace platform {

/// What a window tells of itself and of the process behind it. Everything in it was said by another program: the
/// process may be gone, lie, or run on another machine.
struct WindowIdentity {
  std::uint32_t window = 0;
  std::optional<pid_t> processId;
  std::string instanceName;
  std::string className;
};

}  // namespace platform
