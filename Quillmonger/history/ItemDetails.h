#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Foundation/TextLookup.h"
#include "Quillmonger/history/PictureReading.h"

namespace quillmonger {

/// What is told of an item, such as its size, in the user's language and its way to write numbers.

/// As files are counted: in units of 1,000, with no fraction of a kilobyte, one decimal of a megabyte and two of what
/// is larger. `byteCount`: not negative.
[[nodiscard]] std::string byteCountText(std::int64_t byteCount, const foundation::TextLookup& texts);
/// "1,920×1,080".
[[nodiscard]] std::string pictureSizeText(const PictureSize& size);
[[nodiscard]] std::string lineCountText(std::size_t lineCount, const foundation::TextLookup& texts);
/// The whole line, of a text and of a picture.
[[nodiscard]] std::string textDetails(std::int64_t byteCount, std::size_t lineCount,
                                      const foundation::TextLookup& texts);
[[nodiscard]] std::string pictureDetails(std::int64_t byteCount, const PictureSize& size,
                                         const foundation::TextLookup& texts);
/// "Pasted 3 times". `count`: not negative.
[[nodiscard]] std::string pasteCountText(std::int64_t count, const foundation::TextLookup& texts);

/// How many lines `text`, valid UTF-8, has. None in an empty text; a line end at its very end adds none. Line ends are
/// line feed, carriage return, both together, next line, and the line and paragraph separators.
[[nodiscard]] std::size_t lineCount(std::string_view text);

}  // namespace quillmonger
