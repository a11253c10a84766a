#pragma once

#include <optional>

namespace quillmonger {

/// The screens of the guide, ordered by name. The order in which they are shown is that of `screenAfter`.
enum class LaunchScreen { accessibility, formatting, paste, preview, search, settings, startup, welcome };

/// Absent after the last screen, `accessibility`.
[[nodiscard]] std::optional<LaunchScreen> screenAfter(LaunchScreen screen);

/// Absent before the first screen, `welcome`.
[[nodiscard]] std::optional<LaunchScreen> screenBefore(LaunchScreen screen);

}  // namespace quillmonger
