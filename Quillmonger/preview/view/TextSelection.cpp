#include "Quillmonger/preview/view/TextSelection.h"

#include <algorithm>

#include "Quillmonger/preview/view/TextPiecesModel.h"

namespace quillmonger {

void TextSelection::begin(int piece, int position) {
  m_anchor = {piece, position};
  m_cursor = m_anchor;
  emit changed();
}

void TextSelection::extend(int piece, int position) {
  m_cursor = {piece, position};
  emit changed();
}

TextSelection::Range TextSelection::range() const {
  return {std::min(m_anchor, m_cursor), std::max(m_anchor, m_cursor)};
}

int TextSelection::startIn(int piece, int length) const {
  const Place start = range().start;
  return start.piece < piece ? 0 : start.piece > piece ? length : std::min(start.position, length);
}

int TextSelection::endIn(int piece, int length) const {
  const Place end = range().end;
  return end.piece > piece ? length : end.piece < piece ? 0 : std::min(end.position, length);
}

std::string selectedText(const TextPieces& pieces, const TextSelection::Range& range) {
  std::string text;
  for (int piece = range.start.piece; piece <= range.end.piece && piece < static_cast<int>(pieces.count()); ++piece) {
    QString part = pieceText(pieces, static_cast<std::size_t>(piece));
    if (piece == range.end.piece) part.truncate(range.end.position);
    if (piece == range.start.piece) part.remove(0, range.start.position);
    text += part.toStdString();
  }
  return text;
}

}  // namespace quillmonger
