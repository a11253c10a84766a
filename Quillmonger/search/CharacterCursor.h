#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "Quillmonger/search/CharacterRange.h"

namespace quillmonger {

/// Goes through a text and counts its characters as a user perceives them (extended grapheme clusters of UAX #29).
/// One thread at a time; the text outlives it.
class CharacterCursor final {
 public:
  /// `text` is valid UTF-8.
  explicit CharacterCursor(std::string_view text) : m_text(text) {}

  /// Goes forward to the byte `offset`, at most the text's size. Whether a character starts there, or the text ends.
  bool advanceTo(std::size_t offset);
  /// How many characters start before the present offset.
  [[nodiscard]] std::size_t startedCount() const { return m_startedCount; }

 private:
  void skipAscii(std::size_t offset);
  [[nodiscard]] bool isBoundaryBefore(std::int32_t character) const;
  void step(std::int32_t character);

  // How far the characters before go towards one sequence of emoji joined into a single sign.
  enum class Emoji : std::uint8_t { none, pictograph, joined };

  std::string_view m_text;
  std::size_t m_at = 0;
  std::size_t m_startedCount = 0;
  std::int32_t m_previousClass = -1;  // none yet
  Emoji m_emoji = Emoji::none;
  bool m_isOddRegionalIndicator = false;
};

/// The characters of `text` that the bytes from `start` to `end` lie in; an empty range counts as one character wide.
[[nodiscard]] CharacterRange characterRange(std::string_view text, std::size_t start, std::size_t end);

}  // namespace quillmonger
