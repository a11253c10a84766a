#include "Quillmonger/preview/TextPieces.h"

#include <algorithm>
#include <utility>

#include "Quillmonger/search/CharacterCursor.h"

namespace quillmonger {

namespace {

bool isTrailByte(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// The first end of a character that isn't before `at`.
std::size_t characterEnd(std::string_view text, std::size_t at) {
  CharacterCursor cursor(text);
  while (at < text.size() && (isTrailByte(text[at]) || !cursor.advanceTo(at)))
    ++at;
  return at;
}

std::size_t pieceLength(std::string_view text) {
  if (text.size() <= TextPieces::usualLength) return text.size();
  const auto lineEnd = text.rfind('\n', TextPieces::usualLength - 1);
  if (lineEnd != std::string_view::npos) return lineEnd + 1;
  const auto longest = text.substr(0, TextPieces::longestLength);
  const auto nextLineEnd = longest.find('\n');
  if (nextLineEnd != std::string_view::npos) return nextLineEnd + 1;
  if (text.size() <= TextPieces::longestLength) return text.size();
  const auto blank = longest.rfind(' ');
  return blank != std::string_view::npos ? blank + 1 : characterEnd(text, TextPieces::longestLength);
}

}  // namespace

TextPieces::TextPieces(foundation::Data data, std::size_t offset, std::string_view text)
    : m_data(std::move(data)), m_offset(offset) {
  for (std::size_t at = 0; at < text.size();) {
    at += pieceLength(text.substr(at));
    m_ends.push_back(at);
  }
}

std::string TextPieces::piece(std::size_t index) const {
  const std::size_t start = index == 0 ? 0 : m_ends[index - 1];
  return m_data.part(m_offset + start, m_ends[index] - start);
}

}  // namespace quillmonger
