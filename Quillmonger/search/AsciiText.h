#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillmonger {

/// The few operations on bytes that a search spends its time in. Any thread.

[[nodiscard]] bool isAscii(std::string_view text);

/// Appends `text` with "A" to "Z" as small letters, and every other byte as it is.
void appendLowered(std::string& lowered, std::string_view text);

/// Where `bytes` first stand in `text` from the byte `from` on; `std::string_view::npos` for nowhere.
[[nodiscard]] std::size_t findBytes(std::string_view text, std::string_view bytes, std::size_t from = 0);

/// As `findBytes`, of `lowered` in the small letters of `text`.
[[nodiscard]] std::size_t findLowered(std::string_view text, std::string_view lowered, std::size_t from);

}  // namespace quillmonger
