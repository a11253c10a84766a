#pragma once

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

#include "Quillmonger/history/ClipboardItemViewModel.h"
#include "Quillmonger/search/SearchResult.h"

namespace quillmonger {

/// The items of the history in their order, which a search can take as they stand without a copy: the list copies
/// itself only when it changes while a search still holds it. Main thread; a snapshot is let go of there too.
class ItemList final {
 public:
  using Item = std::shared_ptr<ClipboardItemViewModel>;

  [[nodiscard]] std::size_t count() const { return m_items->size(); }
  [[nodiscard]] const std::vector<Item>& items() const { return *m_items; }
  [[nodiscard]] SearchItems<ClipboardItemViewModel> snapshot() const { return m_items; }

  /// The first item whose record equals `record`; null when there is none.
  [[nodiscard]] Item firstEqualTo(const ClipboardItem& record) const;
  [[nodiscard]] bool contains(const ClipboardItemViewModel& item) const;

  /// Puts `batch` in front, in its order.
  void insertFirst(const std::vector<Item>& batch);
  /// Nothing happens for an item that isn't here.
  void remove(const ClipboardItemViewModel& item);
  /// At most `count()`.
  void removeLast(std::size_t count);
  void removeAll();

 private:
  using Items = std::vector<Item>;
  Items& writableItems();
  void forget(const ClipboardItemViewModel& item);

  std::shared_ptr<Items> m_items = std::make_shared<Items>();
  // By the hash of the record's digest: equal records have equal digests.
  std::unordered_multimap<std::size_t, const ClipboardItemViewModel*> m_byDigest;
};

}  // namespace quillmonger
