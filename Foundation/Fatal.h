#pragma once

#include <string_view>

namespace foundation {

/// Stops the process at once, with `message` on standard error: a broken invariant, or a failure the program can't
/// live with. Nothing is unwound or saved. Any thread.
[[noreturn]] void stopProcess(std::string_view message);

}  // namespace foundation
