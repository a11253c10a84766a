#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "Foundation/RunLoop.h"
#include "Quillmonger/search/PreparedTexts.h"
#include "Quillmonger/search/SearchItems.h"
#include "Quillmonger/search/SearchResult.h"
#include "Quillmonger/search/TextMatcher.h"

namespace quillmonger {

/// Looks for one term in a slice of the items. One worker's; one thread at a time.
template <typename T>
class SliceSearch final {
 public:
  struct Found {
    SearchResult<T> result;
    foundation::Date date;
  };

  SliceSearch(std::string_view term, const SearchOptions& options)
      : m_options(options), m_matcher(isInert(term, options) ? nullptr : makeTextMatcher(term, options)) {}

  /// What the term matches of the items from `start` to `end`, `end` excluded, in their order.
  [[nodiscard]] std::vector<Found> find(const SearchItems<T>& items, std::size_t start, std::size_t end) {
    m_found.clear();
    std::size_t chunkStart = 0;
    for (const auto& chunk : items.chunks()) {
      const std::size_t size = chunk->items().size();
      const std::size_t first = std::clamp(start, chunkStart, chunkStart + size) - chunkStart;
      const std::size_t last = std::clamp(end, chunkStart, chunkStart + size) - chunkStart;
      if (first < last) findIn(*chunk, first, last);
      chunkStart += size;
    }
    return std::move(m_found);
  }

 private:
  using Chunk = SearchChunk<T>;
  using Hit = PreparedTexts::Hit;
  using Kind = PreparedTexts::Kind;

  void findIn(const Chunk& chunk, std::size_t first, std::size_t last) {
    if (!m_matcher) {
      for (std::size_t index = first; index < last; ++index)
        add(chunk, index, 0.0, std::nullopt);
      return;
    }
    const auto& prepared = chunk.prepared();
    m_isAppFound.assign(chunk.items().size(), std::nullopt);
    auto hit = nextHit(prepared.texts, first, last);
    for (std::size_t index = first; index < last; ++index) {
      const bool isHit = hit && hit->text == index;
      if (const auto match = matchText(chunk, index, isHit ? hit : std::nullopt)) {
        add(chunk, index, 0.0, match);
      } else if (m_options.includesAppName && isAppFound(chunk, prepared.firstOfApp[index])) {
        add(chunk, index, 1.0, std::nullopt);
      }
      if (isHit) hit = nextHit(prepared.texts, index + 1, last);
    }
  }

  [[nodiscard]] std::optional<Hit> nextHit(const PreparedTexts& texts, std::size_t first, std::size_t last) const {
    const auto term = m_matcher->foldedTerm();
    return term.empty() ? std::nullopt : texts.find(term, first, last);
  }

  [[nodiscard]] std::optional<CharacterRange> matchText(const Chunk& chunk, std::size_t index,
                                                        const std::optional<Hit>& hit) {
    const auto term = m_matcher->foldedTerm();
    const auto kind = chunk.prepared().texts.kind(index);
    if (!hit && kind != Kind::unprepared && !term.empty()) return std::nullopt;
    if (hit && kind == Kind::plain && m_matcher->isAnyCaseFound()) {
      return CharacterRange{hit->offset, hit->offset + term.size() - 1};
    }
    return m_matcher->find(chunk.items()[index]->text().view);
  }

  // Each application is asked for its name and compared once for all its items of the chunk.
  [[nodiscard]] bool isAppFound(const Chunk& chunk, std::size_t firstOfApp) {
    auto& isFound = m_isAppFound[firstOfApp];
    if (!isFound) {
      const auto name = chunk.items()[firstOfApp]->appName();
      isFound = name && m_matcher->find(*name);
    }
    return *isFound;
  }

  void add(const Chunk& chunk, std::size_t index, double score, const std::optional<CharacterRange>& match) {
    m_found.push_back({{chunk.items()[index].get(), score, match}, chunk.dates()[index]});
  }

  SearchOptions m_options;
  std::unique_ptr<TextMatcher> m_matcher;  // null for a term that every item matches
  std::vector<std::optional<bool>> m_isAppFound;
  std::vector<Found> m_found;
};

}  // namespace quillmonger
