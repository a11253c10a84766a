#include "Quillmonger/preview/FadingText.h"

#include <algorithm>

#include "Quillmonger/search/CharacterCursor.h"

namespace quillmonger {

namespace {

bool isTrailByte(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

std::size_t codePointFrom(std::string_view text, std::size_t at) {
  while (at < text.size() && isTrailByte(text[at]))
    ++at;
  return at;
}

}  // namespace

std::optional<std::string_view> fadingText(std::string_view text, std::size_t characterLimit) {
  CharacterCursor cursor(text);
  std::size_t at = 0;
  // No character is shorter than a byte, so that many bytes start no more than the missing characters.
  while (at < text.size() && cursor.startedCount() <= characterLimit) {
    const std::size_t missing = characterLimit + 1 - cursor.startedCount();
    at = codePointFrom(text, std::min(text.size(), at + missing));
    cursor.advanceTo(at);
  }
  if (cursor.startedCount() <= characterLimit) return std::nullopt;
  while (!cursor.advanceTo(at))
    at = codePointFrom(text, at + 1);
  return text.substr(0, at);
}

}  // namespace quillmonger
