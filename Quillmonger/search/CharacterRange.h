#pragma once

#include <cstddef>

namespace quillmonger {

/// A closed range of characters, as a user perceives them (extended grapheme clusters), counted from the text's start.
struct CharacterRange {
  std::size_t lower = 0;
  std::size_t upper = 0;

  bool operator==(const CharacterRange&) const = default;
};

}  // namespace quillmonger
