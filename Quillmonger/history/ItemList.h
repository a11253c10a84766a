#pragma once

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

#include "Quillmonger/history/ClipboardItemViewModel.h"
#include "Quillmonger/search/SearchItems.h"

namespace quillmonger {

/// The items of the history in their order, each found by its record, and handed to a search without a copy.
/// Main thread.
class ItemList final {
 public:
  using Item = std::shared_ptr<ClipboardItemViewModel>;

  [[nodiscard]] std::size_t count() const { return m_items.size(); }
  /// Copying them costs next to nothing, and a copy stays as it is.
  [[nodiscard]] const SearchItems<ClipboardItemViewModel>& items() const { return m_items; }

  /// The first item whose record equals `record`; null when there is none.
  [[nodiscard]] Item firstEqualTo(const ClipboardItem& record) const;
  [[nodiscard]] bool contains(const ClipboardItemViewModel& item) const;

  /// Puts `batch` in front, in its order.
  void insertFirst(const std::vector<Item>& batch);
  /// Nothing happens for an item that isn't here.
  void remove(const ClipboardItemViewModel& item);
  /// At most `count()`. Gives what was removed, in its order.
  std::vector<Item> removeLast(std::size_t count);
  void removeAll();

 private:
  void forget(const ClipboardItemViewModel& item);

  SearchItems<ClipboardItemViewModel> m_items;
  // By the hash of the record's digest: equal records have equal digests.
  std::unordered_multimap<std::size_t, const ClipboardItemViewModel*> m_byDigest;
};

}  // namespace quillmonger
