#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Foundation/TextLookup.h"
#include "Quillmonger/history/PictureReading.h"

namespace quillmonger {

/// The parts of the line that tells of an item's size, in the user's language and its way to write numbers.

/// As files are counted: in units of 1,000, with no fraction of a kilobyte, one decimal of a megabyte and two of what
/// is larger. `byteCount`: not negative.
[[nodiscard]] std::string byteCountText(std::int64_t byteCount, const foundation::TextLookup& texts);
/// "1,920×1,080".
[[nodiscard]] std::string pictureSizeText(const PictureSize& size);
[[nodiscard]] std::string lineCountText(std::size_t lineCount, const foundation::TextLookup& texts);

/// How many lines `text`, valid UTF-8, has. None in an empty text; a line end at its very end adds none. Line ends are
/// line feed, carriage return, both together, next line, and the line and paragraph separators.
[[nodiscard]] std::size_t lineCount(std::string_view text);

}  // namespace quillmonger
