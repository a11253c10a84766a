#include "tests/support/FakeStoreContext.h"

#include <algorithm>

namespace testsupport {

using Record = quillmonger::StoreContext::Record;

foundation::Result<Record> FakeStoreContext::fetchByDigest(std::string_view hashedData) {
  if (m_failure) return foundation::Error{*m_failure};
  for (const auto& record : m_records) {
    if (record->hashedData() == hashedData) return record;
  }
  return Record();
}

foundation::Result<Record> FakeStoreContext::fetchById(const foundation::Uuid& id) {
  if (m_failure || m_idFailure) return foundation::Error{m_failure.value_or(m_idFailure.value_or(""))};
  for (const auto& record : m_records) {
    if (record->id() == id) return record;
  }
  return Record();
}

foundation::Result<std::vector<Record>> FakeStoreContext::fetchAll() {
  if (m_failure) return foundation::Error{*m_failure};
  auto records = m_records;
  std::stable_sort(records.begin(), records.end(), [](const Record& first, const Record& second) {
    return first->creationDate() < second->creationDate();
  });
  return records;
}

void FakeStoreContext::insert(const Record& record) { m_records.push_back(record); }

void FakeStoreContext::remove(const Record& record) { std::erase(m_records, record); }

foundation::Outcome FakeStoreContext::save() {
  ++m_saveCount;
  if (m_failure) return foundation::Error{*m_failure};
  return foundation::success();
}

}  // namespace testsupport
