#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "Quillmonger/search/SearchChunk.h"

namespace quillmonger {

/// A list of items for searches. A copy costs next to nothing and stays as it is when another changes: the list is held
/// in chunks, of which a change replaces one. Main thread; copies may be read by others.
template <typename T>
class SearchItems final {
 public:
  using Item = std::shared_ptr<T>;
  using Chunk = SearchChunk<T>;

  SearchItems() = default;
  explicit SearchItems(const std::vector<Item>& items) { insertFirst(items); }

  [[nodiscard]] std::size_t size() const { return m_size; }
  [[nodiscard]] bool empty() const { return m_size == 0; }
  [[nodiscard]] const std::vector<std::shared_ptr<const Chunk>>& chunks() const { return m_chunks; }

  /// All items in their order.
  [[nodiscard]] std::vector<Item> all() const {
    std::vector<Item> items;
    items.reserve(m_size);
    for (const auto& chunk : m_chunks)
      items.insert(items.end(), chunk->items().begin(), chunk->items().end());
    return items;
  }
  /// Calls `body` with each item in their order.
  template <typename Body>
  void forEach(Body body) const {
    for (const auto& chunk : m_chunks)
      std::for_each(chunk->items().begin(), chunk->items().end(), body);
  }
  /// The first item that `isWanted`; null when there is none.
  template <typename Predicate>
  [[nodiscard]] Item findIf(Predicate isWanted) const {
    for (const auto& chunk : m_chunks) {
      const auto& items = chunk->items();
      const auto found = std::find_if(items.begin(), items.end(), isWanted);
      if (found != items.end()) return *found;
    }
    return nullptr;
  }

  /// Puts `batch` in front, in its order.
  void insertFirst(const std::vector<Item>& batch) {
    std::vector<Item> front = batch;
    auto after = m_chunks.begin();
    if (after != m_chunks.end() && (*after)->items().size() + batch.size() <= chunkSize) {
      front.insert(front.end(), (*after)->items().begin(), (*after)->items().end());
      ++after;
    }
    std::vector<std::shared_ptr<const Chunk>> chunks;
    for (std::size_t start = 0; start < front.size(); start += chunkSize) {
      const auto first = front.begin() + static_cast<std::ptrdiff_t>(start);
      const auto size = std::min(chunkSize, front.size() - start);
      chunks.push_back(
          std::make_shared<const Chunk>(std::vector<Item>(first, first + static_cast<std::ptrdiff_t>(size))));
    }
    chunks.insert(chunks.end(), after, m_chunks.end());
    m_chunks = std::move(chunks);
    m_size += batch.size();
  }

  /// Nothing happens for an item that isn't here.
  void remove(const T& item) {
    const auto isItem = [&item](const Item& other) { return other.get() == &item; };
    for (auto chunk = m_chunks.begin(); chunk != m_chunks.end(); ++chunk) {
      const auto& items = (*chunk)->items();
      const auto found = std::find_if(items.begin(), items.end(), isItem);
      if (found == items.end()) continue;
      std::vector<Item> rest(items.begin(), found);
      rest.insert(rest.end(), found + 1, items.end());
      replace(chunk, std::move(rest));
      --m_size;
      return;
    }
  }

  /// Gives what was removed, in its order. `count`: at most `size()`.
  std::vector<Item> removeLast(std::size_t count) {
    std::vector<Item> removed;
    m_size -= count;
    while (removed.size() < count) {
      const auto last = m_chunks.end() - 1;
      const auto& present = (*last)->items();
      const auto cut = present.end() - static_cast<std::ptrdiff_t>(std::min(count - removed.size(), present.size()));
      removed.insert(removed.begin(), cut, present.end());
      replace(last, std::vector<Item>(present.begin(), cut));
    }
    return removed;
  }

 private:
  static constexpr std::size_t chunkSize = 512;
  using ChunkIterator = typename std::vector<std::shared_ptr<const Chunk>>::iterator;

  void replace(ChunkIterator chunk, std::vector<Item> items) {
    if (items.empty()) {
      m_chunks.erase(chunk);
    } else {
      *chunk = std::make_shared<const Chunk>(std::move(items));
    }
  }

  std::vector<std::shared_ptr<const Chunk>> m_chunks;
  std::size_t m_size = 0;
};

}  // namespace quillmonger
