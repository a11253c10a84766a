#include "Quillmonger/search/CharacterCursor.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>

namespace quillmonger {

namespace {

std::int32_t breakClass(UChar32 character) { return u_getIntPropertyValue(character, UCHAR_GRAPHEME_CLUSTER_BREAK); }

bool isControl(std::int32_t type) { return type == U_GCB_CONTROL || type == U_GCB_CR || type == U_GCB_LF; }

bool joinsHangul(std::int32_t previous, std::int32_t next) {
  switch (previous) {
    case U_GCB_L:
      return next == U_GCB_L || next == U_GCB_V || next == U_GCB_LV || next == U_GCB_LVT;
    case U_GCB_LV:
    case U_GCB_V:
      return next == U_GCB_V || next == U_GCB_T;
    case U_GCB_LVT:
    case U_GCB_T:
      return next == U_GCB_T;
    default:
      return false;
  }
}

bool isPlainAscii(char byte) { return static_cast<signed char>(byte) >= ' '; }

}  // namespace

bool CharacterCursor::advanceTo(std::size_t offset) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(m_text.data());
  const std::size_t size = m_text.size();
  while (m_at < offset) {
    skipAscii(offset);
    if (m_at >= offset) break;
    UChar32 character = 0;
    U8_NEXT(bytes, m_at, size, character);
    step(character);
  }
  if (m_at != offset || offset == size) return m_at == offset;
  UChar32 next = 0;
  std::size_t after = m_at;
  U8_NEXT(bytes, after, size, next);
  return isBoundaryBefore(next);
}

// Between two plain ASCII characters there is always a boundary, so that most text needs no look-up.
void CharacterCursor::skipAscii(std::size_t offset) {
  if (m_at == 0 || !isPlainAscii(m_text[m_at - 1])) return;
  const std::size_t start = m_at;
  while (m_at < offset && isPlainAscii(m_text[m_at]))
    ++m_at;
  if (m_at == start) return;
  m_startedCount += m_at - start;
  m_previousClass = breakClass(m_text[m_at - 1]);
  m_emoji = Emoji::none;
  m_isOddRegionalIndicator = false;
}

bool CharacterCursor::isBoundaryBefore(std::int32_t character) const {
  const std::int32_t previous = m_previousClass;
  const std::int32_t next = breakClass(character);
  if (previous < 0) return true;
  if (previous == U_GCB_CR && next == U_GCB_LF) return false;
  if (isControl(previous) || isControl(next)) return true;
  if (joinsHangul(previous, next)) return false;
  if (next == U_GCB_EXTEND || next == U_GCB_ZWJ || next == U_GCB_SPACING_MARK) return false;
  if (previous == U_GCB_PREPEND) return false;
  if (m_emoji == Emoji::joined && u_hasBinaryProperty(character, UCHAR_EXTENDED_PICTOGRAPHIC)) return false;
  return !(m_isOddRegionalIndicator && next == U_GCB_REGIONAL_INDICATOR);
}

void CharacterCursor::step(std::int32_t character) {
  if (isBoundaryBefore(character)) ++m_startedCount;
  const std::int32_t type = breakClass(character);
  m_isOddRegionalIndicator = type == U_GCB_REGIONAL_INDICATOR && !m_isOddRegionalIndicator;
  if (u_hasBinaryProperty(character, UCHAR_EXTENDED_PICTOGRAPHIC)) {
    m_emoji = Emoji::pictograph;
  } else if (type == U_GCB_ZWJ && m_emoji == Emoji::pictograph) {
    m_emoji = Emoji::joined;
  } else if (type != U_GCB_EXTEND || m_emoji == Emoji::joined) {
    m_emoji = Emoji::none;
  }
  m_previousClass = type;
}

CharacterRange characterRange(std::string_view text, std::size_t start, std::size_t end) {
  CharacterCursor cursor(text);
  const bool isStart = cursor.advanceTo(start);
  const std::size_t lower = isStart ? cursor.startedCount() : cursor.startedCount() - 1;
  if (end <= start) return {lower, lower};
  cursor.advanceTo(end);
  return {lower, std::max(lower, cursor.startedCount() - 1)};
}

}  // namespace quillmonger
