#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <compare>
#include <string>

#include "Quillmonger/preview/TextPieces.h"

namespace quillmonger {

/// What is selected of a text that is shown in pieces: from one place to another, which may lie in different pieces.
/// Not final, since QML derives from it. Main thread.
class TextSelection : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")

 public:
  /// In a piece as it is shown.
  struct Place {
    int piece = 0;
    int position = 0;

    auto operator<=>(const Place&) const = default;
  };
  /// `start` is not after `end`.
  struct Range {
    Place start;
    Place end;
  };

  /// Starts a new selection, which is empty.
  Q_INVOKABLE void begin(int piece, int position);
  /// Moves the selection's other end.
  Q_INVOKABLE void extend(int piece, int position);
  /// Where the selection starts and ends in a piece of `length` characters; the same for none of it.
  Q_INVOKABLE [[nodiscard]] int startIn(int piece, int length) const;
  Q_INVOKABLE [[nodiscard]] int endIn(int piece, int length) const;

  void clear() { begin(0, 0); }
  [[nodiscard]] bool isEmpty() const { return m_anchor == m_cursor; }
  [[nodiscard]] Range range() const;

 signals:
  void changed();

 private:
  Place m_anchor;
  Place m_cursor;
};

/// The text of a range. Reads its pieces. Any thread.
[[nodiscard]] std::string selectedText(const TextPieces& pieces, const TextSelection::Range& range);

}  // namespace quillmonger
