#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Quillmonger/shell/command/CommandSyntax.h"
#include "Quillmonger/shell/command/CommandedHistory.h"
#include "Quillmonger/shell/command/RecordList.h"

namespace quillmonger {

/// The numbers and ids by which the command line names the records of a history at one moment. Main thread.
class RecordNames final {
 public:
  explicit RecordNames(CommandedHistory::Records newestFirst) : m_records(std::move(newestFirst)) {}

  /// Absent when there is no such record.
  [[nodiscard]] std::optional<NumberedRecord> find(const RecordName& name) const;
  /// All in their order.
  [[nodiscard]] std::vector<NumberedRecord> all() const;
  /// `records` in their order, without those that are not in the history.
  [[nodiscard]] std::vector<NumberedRecord> numbered(const CommandedHistory::Records& records) const;

 private:
  CommandedHistory::Records m_records;
};

/// A name as the user wrote it.
[[nodiscard]] std::string toText(const RecordName& name);

}  // namespace quillmonger
