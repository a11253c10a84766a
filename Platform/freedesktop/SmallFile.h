#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace platform {

/// The content of a regular file that another program wrote. Absent when there is none, when it is no regular file,
/// and when it is longer than `limit` bytes. Never waits for a writer. Any thread.
[[nodiscard]] std::optional<std::string> readSmallFile(const std::filesystem::path& path, std::size_t limit);

}  // namespace platform
