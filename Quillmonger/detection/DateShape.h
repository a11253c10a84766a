#pragma once

#include <string_view>

namespace quillmonger {

/// Whether one of the date patterns could match `text`, valid UTF-8, in some locale. False for nearly every text that
/// is no date, within a microsecond or so; never false for one that is. Any thread.
[[nodiscard]] bool isShapedLikeDatePattern(std::string_view text);

}  // namespace quillmonger
