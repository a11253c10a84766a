#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quillmonger {

/// What the pane shows of a text when long texts are hidden: `text`, valid UTF-8, is too long when it has more than
/// `characterLimit` characters as a user perceives them (extended grapheme clusters), and then its first
/// `characterLimit` + 1 are shown. Absent for a text that isn't too long. Reads no further than that. Any thread.
[[nodiscard]] std::optional<std::string_view> fadingText(std::string_view text, std::size_t characterLimit);

}  // namespace quillmonger
