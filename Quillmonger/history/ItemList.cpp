#include "Quillmonger/history/ItemList.h"

#include <algorithm>
#include <functional>
#include <string>

namespace quillmonger {

namespace {

std::size_t digestHash(const ClipboardItem& record) { return std::hash<std::string>()(record.hashedData()); }

}  // namespace

ItemList::Item ItemList::firstEqualTo(const ClipboardItem& record) const {
  const auto [first, last] = m_byDigest.equal_range(digestHash(record));
  std::vector<const ClipboardItemViewModel*> equal;
  for (auto candidate = first; candidate != last; ++candidate) {
    if (*candidate->second->item() == record) equal.push_back(candidate->second);
  }
  if (equal.empty()) return nullptr;
  return m_items.findIf(
      [&equal](const Item& item) { return std::find(equal.begin(), equal.end(), item.get()) != equal.end(); });
}

bool ItemList::contains(const ClipboardItemViewModel& item) const {
  return m_items.findIf([&item](const Item& other) { return other.get() == &item; }) != nullptr;
}

void ItemList::insertFirst(const std::vector<Item>& batch) {
  m_items.insertFirst(batch);
  for (const auto& item : batch)
    m_byDigest.emplace(digestHash(*item->item()), item.get());
}

void ItemList::remove(const ClipboardItemViewModel& item) {
  // The list may hold the item's last reference.
  forget(item);
  m_items.remove(item);
}

std::vector<ItemList::Item> ItemList::removeLast(std::size_t count) {
  auto removed = m_items.removeLast(count);
  for (const auto& item : removed)
    forget(*item);
  return removed;
}

void ItemList::removeAll() {
  m_items = {};
  m_byDigest.clear();
}

void ItemList::forget(const ClipboardItemViewModel& item) {
  const auto [first, last] = m_byDigest.equal_range(digestHash(*item.item()));
  const auto found = std::find_if(first, last, [&item](const auto& entry) { return entry.second == &item; });
  if (found != last) m_byDigest.erase(found);
}

}  // namespace quillmonger
