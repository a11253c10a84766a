#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "Foundation/Data.h"

namespace quillmonger {

/// A text of any length as pieces that are short enough to be laid out one by one. They end at line ends wherever a
/// line isn't too long for that, else at a blank, else between two characters. Only where they start is kept; a piece
/// is read when it is asked for. Any thread.
class TextPieces final {
 public:
  /// In bytes: a piece ends with the last line that ends within `usualLength`, or else with the first one that ends
  /// within `longestLength`, which takes about a frame to lay out. Only a character that is longer than that makes a
  /// longer piece.
  static constexpr std::size_t usualLength = 2048;
  static constexpr std::size_t longestLength = 32768;

  /// Of an empty text there are none.
  TextPieces() = default;
  /// Reads `text`, valid UTF-8, which lies in `data` from the byte `offset` on.
  TextPieces(foundation::Data data, std::size_t offset, std::string_view text);

  [[nodiscard]] std::size_t count() const { return m_ends.size(); }
  /// All of the piece, with the line end at its end. Empty when it can't be read. `index`: below `count`.
  [[nodiscard]] std::string piece(std::size_t index) const;

 private:
  foundation::Data m_data;
  std::size_t m_offset = 0;
  std::vector<std::size_t> m_ends;  // ascending, from the start of the text
};

}  // namespace quillmonger
