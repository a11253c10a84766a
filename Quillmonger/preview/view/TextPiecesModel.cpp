#include "Quillmonger/preview/view/TextPiecesModel.h"

#include <utility>

#include "Quillmonger/history/view/RowLine.h"

namespace quillmonger {

int TextPiecesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_pieces.count());
}

QVariant TextPiecesModel::data(const QModelIndex& index, int role) const {
  if (role != pieceRole || !index.isValid()) return {};
  QString text = pieceText(m_pieces, static_cast<std::size_t>(index.row()));
  const bool isLast = index.row() + 1 == rowCount();
  if (!isLast && text.endsWith(u'\n')) text.chop(1);
  for (QChar& character : text)
    if (character != u'\n' && character != u'\t') character = controlPicture(character);
  return withWholeEmoji(std::move(text));
}

QHash<int, QByteArray> TextPiecesModel::roleNames() const { return {{pieceRole, "piece"}}; }

QString pieceText(const TextPieces& pieces, std::size_t index) {
  QString text = QString::fromStdString(pieces.piece(index));
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  text.replace(u'\r', u'\n');
  return text;
}

}  // namespace quillmonger
