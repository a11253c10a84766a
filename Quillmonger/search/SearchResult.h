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
/// found, and what is the same for every row not at all: counting or comparing a hundred thousand rows one by one would
/// hold up the main thread.
template <typename T>
class SearchResultList final {
 public:
  using Row = SearchResult<T>;

  SearchResultList() = default;
  /// `items` hold the rows' items.
  SearchResultList(const std::vector<Row>& rows, SearchItems<T> items) : m_items(std::move(items)) {
    m_found.reserve(rows.size());
    for (const Row& row : rows)
      m_found.push_back(row.item);
    const auto isPlain = [](const Row& row) { return row.score == 0.0 && !row.match; };
    if (std::all_of(rows.begin(), rows.end(), isPlain)) return;
    m_hits.reserve(rows.size());
    for (const Row& row : rows)
      m_hits.push_back({row.score, row.match});
  }

  [[nodiscard]] std::size_t size() const { return m_found.size(); }
  [[nodiscard]] bool empty() const { return m_found.empty(); }
  [[nodiscard]] Row front() const { return at(0); }
  [[nodiscard]] Row at(std::size_t row) const {
    return m_hits.empty() ? Row{m_found.at(row), 0.0, std::nullopt}
                          : Row{m_found.at(row), m_hits[row].score, m_hits[row].match};
  }
  /// The rows' items.
  [[nodiscard]] const std::vector<T*>& found() const { return m_found; }
  /// Whether a row may have something to highlight.
  [[nodiscard]] bool mayHaveMatches() const { return !m_hits.empty(); }
  [[nodiscard]] std::optional<std::size_t> rowOf(const T* item) const {
    const auto at = std::find(m_found.begin(), m_found.end(), item);
    return at == m_found.end() ? std::nullopt : std::optional(static_cast<std::size_t>(at - m_found.begin()));
  }

  /// This list without the rows from `first` to `last`, `last` excluded.
  [[nodiscard]] std::shared_ptr<const SearchResultList> without(std::size_t first, std::size_t last) const {
    auto rest = std::make_shared<SearchResultList>();
    rest->m_found = rowsWithout(m_found, first, last);
    if (!m_hits.empty()) rest->m_hits = rowsWithout(m_hits, first, last);
    rest->m_items = m_items;
    return rest;
  }

 private:
  struct Hit {
    double score;
    std::optional<CharacterRange> match;
  };

  template <typename Rows>
  static Rows rowsWithout(const Rows& rows, std::size_t first, std::size_t last) {
    Rows rest;
    rest.reserve(rows.size() - (last - first));
    rest.insert(rest.end(), rows.begin(), rows.begin() + static_cast<std::ptrdiff_t>(first));
    rest.insert(rest.end(), rows.begin() + static_cast<std::ptrdiff_t>(last), rows.end());
    return rest;
  }

  std::vector<T*> m_found;
  std::vector<Hit> m_hits;  // one for each row, or none when all are {0.0, absent}
  SearchItems<T> m_items;
};

/// Shared: handing one on costs nothing. Let go of on the main thread.
template <typename T>
using SearchResults = std::shared_ptr<const SearchResultList<T>>;

}  // namespace quillmonger
