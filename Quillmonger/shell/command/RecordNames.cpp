#include "Quillmonger/shell/command/RecordNames.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <variant>

namespace quillmonger {

std::optional<NumberedRecord> RecordNames::find(const RecordName& name) const {
  if (const auto* number = std::get_if<std::size_t>(&name)) {
    if (*number > m_records.size()) return std::nullopt;
    return NumberedRecord{*number, m_records[*number - 1]};
  }
  const auto found =
      std::ranges::find(m_records, std::get<foundation::Uuid>(name), [](const auto& record) { return record->id(); });
  if (found == m_records.end()) return std::nullopt;
  return NumberedRecord{static_cast<std::size_t>(found - m_records.begin()) + 1, *found};
}

std::vector<NumberedRecord> RecordNames::all() const {
  std::vector<NumberedRecord> all;
  all.reserve(m_records.size());
  for (const auto& record : m_records)
    all.push_back({all.size() + 1, record});
  return all;
}

std::vector<NumberedRecord> RecordNames::numbered(const CommandedHistory::Records& records) const {
  std::unordered_map<const ClipboardItem*, std::size_t> numbers;
  for (const auto& record : m_records)
    numbers.emplace(record.get(), numbers.size() + 1);
  std::vector<NumberedRecord> numbered;
  for (const auto& record : records) {
    const auto number = numbers.find(record.get());
    if (number != numbers.end()) numbered.push_back({number->second, record});
  }
  return numbered;
}

std::string toText(const RecordName& name) {
  const auto* number = std::get_if<std::size_t>(&name);
  return number != nullptr ? std::to_string(*number) : std::get<foundation::Uuid>(name).toString();
}

}  // namespace quillmonger
