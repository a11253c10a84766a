#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace platform {

/// The SHA-256 digest of a file's content, as 64 lower-case hexadecimal digits. Absent when it can't be read. Any
/// thread.
[[nodiscard]] std::optional<std::string> sha256OfFile(const std::filesystem::path& path);

}  // namespace platform
