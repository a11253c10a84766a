#include "Quillmonger/history/ItemList.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <string>

namespace quillmonger {

namespace {

std::size_t digestHash(const ClipboardItem& record) { return std::hash<std::string>()(record.hashedData()); }

bool isSame(const ItemList::Item& item, const ClipboardItemViewModel& other) { return item.get() == &other; }

}  // namespace

ItemList::Item ItemList::firstEqualTo(const ClipboardItem& record) const {
  const auto [first, last] = m_byDigest.equal_range(digestHash(record));
  std::vector<const ClipboardItemViewModel*> equal;
  for (auto candidate = first; candidate != last; ++candidate) {
    if (*candidate->second->item() == record) equal.push_back(candidate->second);
  }
  if (equal.empty()) return nullptr;
  const auto found = std::find_if(m_items->begin(), m_items->end(), [&equal](const Item& item) {
    return std::find(equal.begin(), equal.end(), item.get()) != equal.end();
  });
  return *found;
}

bool ItemList::contains(const ClipboardItemViewModel& item) const {
  return std::any_of(m_items->begin(), m_items->end(), [&item](const Item& other) { return isSame(other, item); });
}

void ItemList::insertFirst(const std::vector<Item>& batch) {
  auto& items = writableItems();
  items.insert(items.begin(), batch.begin(), batch.end());
  for (const auto& item : batch)
    m_byDigest.emplace(digestHash(*item->item()), item.get());
}

void ItemList::remove(const ClipboardItemViewModel& item) {
  auto& items = writableItems();
  const auto found =
      std::find_if(items.begin(), items.end(), [&item](const Item& other) { return isSame(other, item); });
  if (found == items.end()) return;
  forget(item);
  items.erase(found);
}

void ItemList::removeLast(std::size_t count) {
  auto& items = writableItems();
  const auto start = items.end() - static_cast<std::ptrdiff_t>(count);
  for (auto item = start; item != items.end(); ++item)
    forget(**item);
  items.erase(start, items.end());
}

void ItemList::removeAll() {
  m_items = std::make_shared<Items>();
  m_byDigest.clear();
}

ItemList::Items& ItemList::writableItems() {
  if (m_items.use_count() > 1) m_items = std::make_shared<Items>(*m_items);
  return *m_items;
}

void ItemList::forget(const ClipboardItemViewModel& item) {
  const auto [first, last] = m_byDigest.equal_range(digestHash(*item.item()));
  const auto found = std::find_if(first, last, [&item](const auto& entry) { return entry.second == &item; });
  if (found != last) m_byDigest.erase(found);
}

}  // namespace quillmonger
