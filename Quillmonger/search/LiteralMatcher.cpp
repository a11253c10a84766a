#include "Quillmonger/search/LiteralMatcher.h"

#include <array>

#include "Quillmonger/search/AsciiText.h"
#include "Quillmonger/search/CharacterCursor.h"
#include "Quillmonger/search/FoldedText.h"

namespace quillmonger {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;
// More than ICU can count in one piece.
constexpr std::size_t longestText = 1U << 30U;

// The characters beyond ASCII that fold to ASCII or decompose to it, such as the Kelvin sign and "ß".
constexpr std::array<std::string_view, 13> asciiInDisguise{"\u00DF", "\u017F", "\u037E", "\u1E9E", "\u1FEF",
                                                           "\u212A", "\uFB00", "\uFB01", "\uFB02", "\uFB03",
                                                           "\uFB04", "\uFB05", "\uFB06"};

bool hidesAscii(std::string_view text) {
  constexpr std::string_view leadBytes = "\xC3\xC5\xCD\xE1\xE2\xEF";
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (static_cast<signed char>(text[at]) >= 0 || leadBytes.find(text[at]) == nowhere) continue;
    const auto rest = text.substr(at);
    for (const auto disguise : asciiInDisguise) {
      if (rest.starts_with(disguise)) return true;
    }
  }
  return false;
}

// The characters from `start` to `end`; absent when one of the two cuts a character. The cursor stops at `start`.
std::optional<CharacterRange> wholeCharacters(CharacterCursor& cursor, std::size_t start, std::size_t end) {
  if (!cursor.advanceTo(start)) return std::nullopt;
  CharacterCursor ahead = cursor;
  if (!ahead.advanceTo(end)) return std::nullopt;
  return CharacterRange{cursor.startedCount(), ahead.startedCount() - 1};
}

}  // namespace

LiteralMatcher::LiteralMatcher(std::string_view term, const SearchOptions& options)
    : m_isCaseSensitive(options.isCaseSensitive),
      m_term(FoldedText(term, m_isCaseSensitive ? FoldedText::Case::kept : FoldedText::Case::folded).text()),
      m_foldedTerm(FoldedText(term, FoldedText::Case::folded).text()),
      m_isAsciiTerm(isAscii(m_term)) {
  // "i" is the small form of a letter beyond ASCII there.
  if (!m_isCaseSensitive && hasTurkicCase() && m_term.find('i') != std::string::npos) m_isAsciiTerm = false;
}

std::optional<CharacterRange> LiteralMatcher::find(std::string_view text) {
  if (text.empty() || text.size() > longestText) return std::nullopt;
  return m_isAsciiTerm && (isAscii(text) || !hidesAscii(text)) ? findInAscii(text) : findInFolded(text);
}

std::size_t LiteralMatcher::findAscii(std::string_view text, std::size_t from) const {
  return m_isCaseSensitive ? findBytes(text, m_term, from) : findLowered(text, m_term, from);
}

std::optional<CharacterRange> LiteralMatcher::findInAscii(std::string_view text) const {
  CharacterCursor cursor(text);
  for (std::size_t at = findAscii(text, 0); at != nowhere; at = findAscii(text, at + 1)) {
    if (const auto range = wholeCharacters(cursor, at, at + m_term.size())) return range;
  }
  return std::nullopt;
}

std::optional<CharacterRange> LiteralMatcher::findInFolded(std::string_view text) const {
  const FoldedText folded(text, m_isCaseSensitive ? FoldedText::Case::kept : FoldedText::Case::folded);
  CharacterCursor cursor(text);
  const std::string_view haystack = folded.text();
  for (std::size_t at = haystack.find(m_term); at != nowhere; at = haystack.find(m_term, at + 1)) {
    const auto start = folded.sourceOffset(at);
    const auto end = folded.sourceOffset(at + m_term.size());
    if (!start || !end) continue;
    if (const auto range = wholeCharacters(cursor, *start, *end)) return range;
  }
  return std::nullopt;
}

}  // namespace quillmonger
