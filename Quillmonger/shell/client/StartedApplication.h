#pragma once

#include <filesystem>
#include <optional>

namespace quillmonger {

/// Where the program `quillmonger-app` lies: beside `command`, or in "../libexec/quillmonger" from there.
[[nodiscard]] std::optional<std::filesystem::path> applicationBeside(const std::filesystem::path& command);

/// Starts `program` in a session of its own, with nothing of this process's terminal. False when it can't be started.
[[nodiscard]] bool startDetached(const std::filesystem::path& program);

}  // namespace quillmonger
