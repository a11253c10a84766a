#include "Foundation/Text.h"

#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <cstdint>
#include <cstring>

namespace foundation {

namespace {

// Zero width space counts as white space here: text of nothing else shows as nothing.
constexpr UChar32 zeroWidthSpace = 0x200B;

// The character that ends at `end`, and where it starts; negative for an ill-formed sequence.
UChar32 characterBefore(const std::uint8_t* bytes, std::size_t start, std::size_t& end) {
  std::size_t lead = end - 1;
  while (lead > start && end - lead < U8_MAX_LENGTH && U8_IS_TRAIL(bytes[lead]))
    --lead;
  std::size_t next = lead;
  UChar32 character = 0;
  U8_NEXT(bytes, next, end, character);
  if (next != end) return -1;
  end = lead;
  return character;
}

bool isSpace(UChar32 character) { return character == zeroWidthSpace || u_isUWhiteSpace(character) != 0; }

const std::uint8_t* unsignedBytes(std::string_view text) { return reinterpret_cast<const std::uint8_t*>(text.data()); }

// The first byte beyond ASCII from `at` on, or the end. Most text is ASCII, and long: many bytes at a time.
std::size_t asciiEnd(std::string_view text, std::size_t at) {
  std::uint64_t word = 0;
  for (; text.size() - at >= sizeof word; at += sizeof word) {
    std::memcpy(&word, text.data() + at, sizeof word);
    if ((word & 0x8080808080808080U) != 0) break;
  }
  while (at < text.size() && static_cast<unsigned char>(text[at]) < 0x80)
    ++at;
  return at;
}

}  // namespace

bool isValidUtf8(std::string_view text) {
  const auto* bytes = unsignedBytes(text);
  const std::size_t size = text.size();
  std::size_t at = 0;
  while (at < size) {
    at = asciiEnd(text, at);
    if (at == size) break;
    UChar32 character = 0;
    U8_NEXT(bytes, at, size, character);
    if (character < 0) return false;
  }
  return true;
}

std::string toValidUtf8(std::string_view text) {
  if (isValidUtf8(text)) return std::string(text);
  constexpr std::string_view replacement = "\xEF\xBF\xBD";
  const auto* bytes = unsignedBytes(text);
  const std::size_t size = text.size();
  std::string valid;
  valid.reserve(size);
  std::size_t at = 0;
  while (at < size) {
    const std::size_t start = at;
    UChar32 character = 0;
    U8_NEXT(bytes, at, size, character);
    valid += character < 0 ? replacement : text.substr(start, at - start);
  }
  return valid;
}

std::string_view trimmed(std::string_view text) {
  const auto* bytes = unsignedBytes(text);
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t next = start;
    UChar32 character = 0;
    U8_NEXT(bytes, next, text.size(), character);
    if (character < 0 || !isSpace(character)) break;
    start = next;
  }
  std::size_t end = text.size();
  while (end > start) {
    std::size_t previous = end;
    const UChar32 character = characterBefore(bytes, start, previous);
    if (character < 0 || !isSpace(character)) break;
    end = previous;
  }
  return text.substr(start, end - start);
}

bool isBlank(std::string_view text) { return trimmed(text).empty(); }

std::string lowercased(std::string_view text) {
  std::string result;
  return icu::UnicodeString::fromUTF8(text).toLower(icu::Locale::getRoot()).toUTF8String(result);
}

std::string uppercased(std::string_view text) {
  std::string result;
  return icu::UnicodeString::fromUTF8(text).toUpper(icu::Locale::getRoot()).toUTF8String(result);
}

}  // namespace foundation
