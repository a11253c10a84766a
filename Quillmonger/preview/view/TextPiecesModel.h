#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QString>

#include "Quillmonger/preview/TextPieces.h"

namespace quillmonger {

/// A text of any length for a view that lays out only the pieces that are seen. Not final, since QML derives from it.
/// Main thread.
class TextPiecesModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")

 public:
  enum Role {
    pieceRole = Qt::UserRole  ///< the piece as it is shown, without the line end at its end
  };

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  [[nodiscard]] const TextPieces& pieces() const { return m_pieces; }
  void setPieces(TextPieces pieces);

 private:
  TextPieces m_pieces;
};

/// A piece as it is copied: each line end is one line feed, and so is the one at the end. What is shown of it has a
/// character at the same place for each character of this. Any thread.
[[nodiscard]] QString pieceText(const TextPieces& pieces, std::size_t index);

}  // namespace quillmonger
