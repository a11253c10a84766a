#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace quillmonger {

/// A closed range of characters, as a user perceives them (extended grapheme clusters), counted from the text's start.
struct CharacterRange {
  std::size_t lower = 0;
  std::size_t upper = 0;

  bool operator==(const CharacterRange&) const = default;
};

/// One item that a term matches.
template <typename T>
struct SearchResult {
  std::shared_ptr<T> item;
  /// 0.0 for a hit in the text and for a term that every item matches; 1.0 for a hit in the application's name alone.
  double score = 0.0;
  /// What to highlight in the item's text: the first hit. Absent when the term matches every item, and for a hit in
  /// the application's name.
  std::optional<CharacterRange> match;
};

/// What is searched, and what is found, in order. Shared and immutable: handing one on costs nothing.
template <typename T>
using SearchItems = std::shared_ptr<const std::vector<std::shared_ptr<T>>>;
template <typename T>
using SearchResults = std::shared_ptr<const std::vector<SearchResult<T>>>;

}  // namespace quillmonger
