#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Quillmonger/detection/HSLColor.h"
#include "Quillmonger/detection/RGBColor.h"

namespace quillmonger {

/// How colours are written. Any thread.

/// The colour of three or six hexadecimal digits, after "#" or "0x" or neither, between spaces and tabs. Nothing for
/// another length, for a prefix "0X", or for a text that isn't ASCII.
[[nodiscard]] std::optional<RGBColor> parseHex(std::string_view text);

/// "#FF8000". What lies between two integers is rounded up, here and in `rgbString`.
[[nodiscard]] std::string hexString(const RGBColor& color);
/// "rgb(255, 128, 0)".
[[nodiscard]] std::string rgbString(const RGBColor& color);
/// "hsl(30.1, 100%, 50%)": degrees and percentages, with at most one decimal.
[[nodiscard]] std::string hslString(const HSLColor& color);

}  // namespace quillmonger
