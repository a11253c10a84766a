#include "Quillmonger/detection/ColorText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace quillmonger {

namespace {

constexpr double byteMaximum = 255;

bool isAscii(char byte) { return static_cast<signed char>(byte) >= 0; }

std::string_view withoutBlanks(std::string_view text) {
  constexpr std::string_view blanks = " \t";
  const std::size_t start = std::min(text.find_first_not_of(blanks), text.size());
  return text.substr(start, text.find_last_not_of(blanks) + 1 - start);
}

double hexComponent(char high, char low) {
  const char digits[] = {high, low, '\0'};
  return static_cast<double>(std::strtoul(digits, nullptr, 16)) / byteMaximum;
}

unsigned byteOf(double component) { return static_cast<unsigned>(std::ceil(component * byteMaximum)); }

// "%.1f" in any locale, without ".0".
std::string shortNumber(double number) {
  std::array<char, 8> digits{};  // at most 360
  const auto end = std::to_chars(digits.begin(), digits.end(), number, std::chars_format::fixed, 1).ptr;
  std::string text(digits.begin(), end);
  if (text.ends_with(".0")) text.resize(text.size() - 2);
  return text;
}

}  // namespace

std::optional<RGBColor> parseHex(std::string_view text) {
  std::string_view digits = withoutBlanks(text);
  if (digits.starts_with('#')) {
    digits.remove_prefix(1);
  } else if (digits.starts_with("0x")) {
    digits.remove_prefix(2);
  }
  if ((digits.size() != 3 && digits.size() != 6) || !std::all_of(digits.begin(), digits.end(), isAscii)) {
    return std::nullopt;
  }
  const auto component = [digits](std::size_t number) {
    const bool isShort = digits.size() == 3;
    const char high = digits[isShort ? number : 2 * number];
    return hexComponent(high, isShort ? high : digits[2 * number + 1]);
  };
  return RGBColor(component(0), component(1), component(2));
}

std::string hexString(const RGBColor& color) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text = "#";
  for (const double component : {color.red(), color.green(), color.blue()}) {
    const unsigned byte = byteOf(component);
    text += digits[byte / 16];
    text += digits[byte % 16];
  }
  return text;
}

std::string rgbString(const RGBColor& color) {
  return "rgb(" + std::to_string(byteOf(color.red())) + ", " + std::to_string(byteOf(color.green())) + ", " +
         std::to_string(byteOf(color.blue())) + ")";
}

std::string hslString(const HSLColor& color) {
  return "hsl(" + shortNumber(color.hue() * 360) + ", " + shortNumber(color.saturation() * 100) + "%, " +
         shortNumber(color.lightness() * 100) + "%)";
}

}  // namespace quillmonger
