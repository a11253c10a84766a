#include "Quillmonger/detection/ColorText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quillmonger {

namespace {

constexpr double byteMaximum = 255;

std::string_view withoutBlanks(std::string_view text) {
  constexpr std::string_view blanks = " \t";
  const std::size_t start = std::min(text.find_first_not_of(blanks), text.size());
  return text.substr(start, text.find_last_not_of(blanks) + 1 - start);
}

unsigned byteOf(double component) { return static_cast<unsigned>(std::ceil(component * byteMaximum)); }

char* writeNumber(char* at, unsigned number) {
  if (number >= 10) at = writeNumber(at, number / 10);
  *at = static_cast<char>('0' + number % 10);
  return at + 1;
}

char* writeGap(char* at) {
  at[0] = ',';
  at[1] = ' ';
  return at + 2;
}

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
  const bool isShort = digits.size() == 3;
  if (!isShort && digits.size() != 6) return std::nullopt;
  std::array<char, 6> six{};
  for (std::size_t i = 0; i < six.size(); ++i)
    six[i] = digits[isShort ? i / 2 : i];
  unsigned number = 0;
  if (std::from_chars(six.begin(), six.end(), number, 16).ptr != six.end()) return std::nullopt;
  return RGBColor((number >> 16U) / byteMaximum, (number >> 8U & 0xFFU) / byteMaximum, (number & 0xFFU) / byteMaximum);
}

std::string hexString(const RGBColor& color) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::array<char, 7> text{'#'};
  char* at = text.data() + 1;
  for (const unsigned byte : {byteOf(color.red()), byteOf(color.green()), byteOf(color.blue())}) {
    *at++ = digits[byte / 16];
    *at++ = digits[byte % 16];
  }
  return {text.data(), text.size()};
}

std::string rgbString(const RGBColor& color) {
  std::array<char, 18> text{'r', 'g', 'b', '('};
  char* end = writeNumber(text.data() + 4, byteOf(color.red()));
  end = writeNumber(writeGap(end), byteOf(color.green()));
  end = writeNumber(writeGap(end), byteOf(color.blue()));
  *end++ = ')';
  return {text.data(), end};
}

std::string hslString(const HSLColor& color) {
  return "hsl(" + shortNumber(color.hue() * 360) + ", " + shortNumber(color.saturation() * 100) + "%, " +
         shortNumber(color.lightness() * 100) + "%)";
}

}  // namespace quillmonger
