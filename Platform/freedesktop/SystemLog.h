#pragma once

#include <string>

namespace platform {

/// Writes an error to the system's log, which the user's journal shows. `logger`: the module that it comes from. Any
/// thread.
void logError(const std::string& logger, const std::string& message);

}  // namespace platform
