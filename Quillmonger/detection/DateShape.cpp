#include "Quillmonger/detection/DateShape.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <cstddef>
#include <cstdint>

namespace quillmonger {

namespace {

// In bytes. A date has at most a hundred characters, and those of no script need more.
constexpr std::size_t longest = 4096;

// Takes the first character off `text`, which isn't empty.
UChar32 takeCharacter(std::string_view& text) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  std::size_t at = 0;
  UChar32 character = 0;
  U8_NEXT(bytes, at, text.size(), character);
  text.remove_prefix(at);
  return character;
}

bool isAscii(UChar32 character) { return character >= 0 && character < 0x80; }

// A digit of any script, also of those that count with letters, such as the Chinese.
bool isNumeral(UChar32 character) {
  if (isAscii(character)) return character >= '0' && character <= '9';
  return u_getNumericValue(character) != U_NO_NUMERIC_VALUE;
}

bool isBlank(UChar32 character) {
  return isAscii(character)
             ? character <= ' '
             : u_isUWhiteSpace(character) != 0 || u_hasBinaryProperty(character, UCHAR_PATTERN_WHITE_SPACE);
}

bool startsWithNumeral(std::string_view text) {
  while (!text.empty()) {
    const UChar32 character = takeCharacter(text);
    if (!isBlank(character)) return isNumeral(character);
  }
  return false;
}

// Whether the characters of `wanted` stand in `text` in this order, whatever lies between them; '9' is any numeral.
bool hasInOrder(std::string_view text, std::string_view wanted) {
  while (!text.empty() && !wanted.empty()) {
    const UChar32 character = takeCharacter(text);
    if (wanted.front() == '9' ? isNumeral(character) : character == wanted.front()) wanted.remove_prefix(1);
  }
  return wanted.empty();
}

// Whether `character` can belong to numbers with dashes or slashes between them. Numbers may be written with powers of
// ten, "2E3" or "2×10^3", where some locales have letters of their own, but never after white space.
bool canBeInNumbers(UChar32 character, UChar32 previous) {
  constexpr std::string_view permitted = "-/Ee^+";
  if (isNumeral(character) || isBlank(character)) return true;
  if (isAscii(character)) return permitted.find(static_cast<char>(character)) != std::string_view::npos;
  return !isBlank(previous) || u_isalpha(character) == 0;
}

// "2024-05-01", "05/01/2024", or the first of them with a time after a T.
bool isShapedLikeNumbers(std::string_view text) {
  if (!startsWithNumeral(text)) return false;
  UChar32 previous = ' ';
  std::string_view rest = text;
  while (!rest.empty()) {
    std::string_view next = rest;
    const UChar32 character = takeCharacter(next);
    if (!canBeInNumbers(character, previous)) break;
    previous = character;
    rest = next;
  }
  const std::string_view numbers = text.substr(0, text.size() - rest.size());
  if (rest.empty()) return hasInOrder(numbers, "9-9-9") || hasInOrder(numbers, "9/9/9");
  return rest.front() == 'T' && hasInOrder(numbers, "9-9-9") && hasInOrder(rest, "::");
}

// "Wednesday, 01-May-24 12:30:45 +0000". No locale has a weekday with a comma.
bool isShapedLikeNamedDay(std::string_view text) {
  const std::size_t comma = text.find(',');
  if (comma == std::string_view::npos) return false;
  const std::string_view rest = text.substr(comma + 1);
  return startsWithNumeral(rest) && hasInOrder(rest, "9--9::");
}

}  // namespace

bool isShapedLikeDatePattern(std::string_view text) {
  return text.size() <= longest && (isShapedLikeNumbers(text) || isShapedLikeNamedDay(text));
}

}  // namespace quillmonger
