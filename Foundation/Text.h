#pragma once

#include <string>
#include <string_view>

namespace foundation {

/// Text is UTF-8 throughout. These are the few operations on it that several modules share. Any thread.

[[nodiscard]] bool isValidUtf8(std::string_view text);

/// `text` with every ill-formed sequence replaced by U+FFFD.
[[nodiscard]] std::string toValidUtf8(std::string_view text);

/// `text` without the white space and line ends (Unicode White_Space, U+200B, control line ends) at its two ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// Whether nothing is left of `text` once it is trimmed. Stops at the first other character.
[[nodiscard]] bool isBlank(std::string_view text);

/// In the letters' other case, by the rules that no language adds to. Text that isn't valid UTF-8 is mended first.
[[nodiscard]] std::string lowercased(std::string_view text);
[[nodiscard]] std::string uppercased(std::string_view text);

}  // namespace foundation
