#include "tests/support/FakeStoreContext.h"

#include <algorithm>

namespace testsupport {

using quillmonger::ClipboardItem;
using quillmonger::StoreContext;

template <typename Rule>
foundation::Result<StoreContext::Record> FakeStoreContext::first(const Rule& rule) const {
  if (m_fetchError) return *m_fetchError;
  const auto found = std::ranges::find_if(m_records, rule);
  return found == m_records.end() ? nullptr : *found;
}

foundation::Result<StoreContext::Record> FakeStoreContext::fetchByDigest(std::string_view hashedData) {
  return first([hashedData](const Record& record) { return record->hashedData() == hashedData; });
}

foundation::Result<StoreContext::Record> FakeStoreContext::fetchById(const foundation::Uuid& id) {
  return first([&id](const Record& record) { return record->id() == id; });
}

foundation::Result<std::vector<StoreContext::Record>> FakeStoreContext::fetchAll() {
  if (m_fetchError) return *m_fetchError;
  auto sorted = m_records;
  std::ranges::stable_sort(sorted, {}, [](const Record& record) { return record->creationDate(); });
  return sorted;
}

void FakeStoreContext::insert(const Record& record) {
  m_inserted.push_back(record);
  if (std::ranges::find(m_records, record) == m_records.end()) m_records.push_back(record);
}

void FakeStoreContext::remove(const Record& record) {
  m_removed.push_back(record);
  std::erase(m_records, m_removed.back());
}

foundation::Outcome FakeStoreContext::save() {
  ++m_saves;
  if (m_saveError) return *m_saveError;
  return foundation::success();
}

}  // namespace testsupport
