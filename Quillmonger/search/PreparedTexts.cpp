#include "Quillmonger/search/PreparedTexts.h"

#include <algorithm>

#include "Quillmonger/search/AsciiText.h"
#include "Quillmonger/search/FoldedText.h"

namespace quillmonger {

namespace {

constexpr char closingByte = '\xFF';

// A carriage return may be one character with the line feed behind it; and "I" may fold to a letter beyond ASCII.
bool isPlain(std::string_view text) {
  return isAscii(text) && text.find('\r') == std::string_view::npos &&
         !(hasTurkicCase() && text.find('I') != std::string_view::npos);
}

}  // namespace

void PreparedTexts::add(const std::optional<SharedText>& text) {
  auto kind = Kind::unprepared;
  if (text && text->view.size() <= longestText) {
    kind = isPlain(text->view) ? Kind::plain : Kind::folded;
    if (kind == Kind::plain) {
      appendLowered(m_joined, text->view);
    } else {
      m_joined += FoldedText(text->view, FoldedText::Case::folded).text();
    }
  }
  m_joined += closingByte;
  m_kinds.push_back(kind);
  m_ends.push_back(m_joined.size());
}

std::optional<PreparedTexts::Hit> PreparedTexts::find(std::string_view foldedTerm, std::size_t first,
                                                      std::size_t end) const {
  if (first >= end) return std::nullopt;
  const std::size_t start = startOf(first);
  const auto at = findBytes(std::string_view(m_joined).substr(start, m_ends[end - 1] - start), foldedTerm);
  if (at == std::string_view::npos) return std::nullopt;
  const auto after = std::upper_bound(m_ends.begin() + static_cast<std::ptrdiff_t>(first), m_ends.end(), start + at);
  const auto text = static_cast<std::size_t>(after - m_ends.begin());
  return Hit{text, start + at - startOf(text)};
}

}  // namespace quillmonger
