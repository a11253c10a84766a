#include "Quillmonger/shell/RunningHistory.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "Foundation/Data.h"
#include "Quillmonger/capture/ClipboardItem.h"

namespace quillmonger {

CommandedHistory::Records RunningHistory::records() const {
  Records records;
  m_with.clipboardViewModel.items().forEach([&records](const auto& item) { records.push_back(item->item()); });
  std::ranges::stable_sort(records, std::greater(), [](const auto& record) { return record->creationDate(); });
  return records;
}

void RunningHistory::search(std::string term, Term kind, std::function<void(Records)> done) {
  const SearchOptions options{.isRegularExpression = kind == Term::regularExpression};
  m_with.searchManager.search(
      m_with.clipboardViewModel.items(), std::move(term), options,
      [done = std::move(done), isAlive = std::weak_ptr(m_isAlive)](const ClipboardViewModel::Rows& rows) {
        if (isAlive.expired()) return;
        Records records;
        for (const auto* item : rows->found())
          records.push_back(item->item());
        done(std::move(records));
      });
}

void RunningHistory::paste(const Record& record) {
  if (const auto item = itemOf(record)) item->paste(ClipboardItemViewModel::Invert::no);
}

void RunningHistory::remove(const Records& records) {
  for (const auto& record : records) {
    if (const auto item = itemOf(record)) m_with.clipboardViewModel.deleteItem(item);
  }
  m_with.notificationCenter.post("ItemDeleted");
}

void RunningHistory::removeAll() {
  m_with.clipboardViewModel.deleteAllItems();
  m_with.notificationCenter.post("HistoryCleared");
}

void RunningHistory::copy(const std::string& type, std::string bytes) {
  Payload payload;
  payload.emplace(type, foundation::Data(std::move(bytes)));
  const ClipboardItem item(std::move(payload), std::nullopt, std::nullopt, m_with.runLoop.date());
  m_with.clipboard.writeToPasteboard(item, ClipboardManaging::RemoveFormatting::no);
}

ClipboardViewModel::Item RunningHistory::itemOf(const Record& record) const {
  return m_with.clipboardViewModel.items().findIf([&record](const auto& item) { return item->item() == record; });
}

}  // namespace quillmonger
