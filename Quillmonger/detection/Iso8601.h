#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace quillmonger {

/// The moment that `text` names in the Internet's form of ISO 8601: "2024-05-01T12:30:45" and then "Z", "+02:00" or
/// "+0200". Nothing for another form (a fraction of a second, a missing digit, white space) and for a day, a time or an
/// offset that doesn't exist. Any thread.
[[nodiscard]] std::optional<std::chrono::sys_seconds> readIso8601(std::string_view text);

}  // namespace quillmonger
