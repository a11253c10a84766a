#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "Quillmonger/search/CharacterRange.h"
#include "Quillmonger/search/SearchItems.h"

namespace quillmonger {

/// One item that a term matches.
template <typename T>
struct SearchResult {
  /// The list that it stands in keeps it. Never null there.
  T* item = nullptr;
  /// 0.0 for a hit in the text and for a term that every item matches; 1.0 for a hit in the application's name alone.
  double score = 0.0;
  /// What to highlight in the item's text: the first hit. Absent when the term matches every item, and for a hit in
  /// the application's name.
  std::optional<CharacterRange> match;
};

/// What a search found, in order. Immutable. It keeps the searched items as a whole rather than each one that was
/// found, since counting a hundred thousand in and out would hold up the main thread.
template <typename T>
class SearchResultList final {
 public:
  using Row = SearchResult<T>;

  SearchResultList() = default;
  SearchResultList(std::vector<Row> rows, SearchItems<T> items) : m_rows(std::move(rows)), m_items(std::move(items)) {
    m_hasMatches = std::any_of(m_rows.begin(), m_rows.end(), [](const Row& row) { return row.match.has_value(); });
  }

  [[nodiscard]] std::size_t size() const { return m_rows.size(); }
  [[nodiscard]] bool empty() const { return m_rows.empty(); }
  [[nodiscard]] auto begin() const { return m_rows.begin(); }
  [[nodiscard]] auto end() const { return m_rows.end(); }
  [[nodiscard]] const Row& front() const { return m_rows.front(); }
  [[nodiscard]] const Row& at(std::size_t row) const { return m_rows.at(row); }
  /// Whether any row has something to highlight.
  [[nodiscard]] bool hasMatches() const { return m_hasMatches; }

  /// This list without the rows from `first` to `last`, `last` excluded.
  [[nodiscard]] std::shared_ptr<const SearchResultList> without(std::size_t first, std::size_t last) const {
    std::vector<Row> rest;
    rest.reserve(m_rows.size() - (last - first));
    rest.insert(rest.end(), m_rows.begin(), m_rows.begin() + static_cast<std::ptrdiff_t>(first));
    rest.insert(rest.end(), m_rows.begin() + static_cast<std::ptrdiff_t>(last), m_rows.end());
    return std::make_shared<const SearchResultList>(std::move(rest), m_items);
  }

 private:
  std::vector<Row> m_rows;
  SearchItems<T> m_items;
  bool m_hasMatches = false;
};

/// Shared: handing one on costs nothing. Let go of on the main thread.
template <typename T>
using SearchResults = std::shared_ptr<const SearchResultList<T>>;

}  // namespace quillmonger
