#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Quillmonger/capture/ClipboardItem.h"

namespace quillmonger {

/// A record with the number by which the command line names it.
struct NumberedRecord {
  std::size_t number;
  std::shared_ptr<ClipboardItem> record;
};

/// Records as the user's own command prints them. Main thread.
namespace recordlist {

/// Of a record's text no more stands in a list.
inline constexpr std::size_t characterLimit = 1000;

/// One line for each record: number, date, size, application and the text's beginning, without control characters.
[[nodiscard]] std::string lines(const std::vector<NumberedRecord>& records);
/// A JSON list, a line for each object {number, id, creationDate, sourceAppBundleIdentifier, types, size, timesPasted,
/// text}, in this order. Dates are UTC in ISO 8601; an application or text that a record doesn't have is null.
[[nodiscard]] std::string json(const std::vector<NumberedRecord>& records);
/// One such object, with the whole text.
[[nodiscard]] std::string wholeJson(const NumberedRecord& record);
/// The whole text, without anything that is no UTF-8; absent when the record has none, or one of more than `wholeLimit`
/// bytes.
[[nodiscard]] std::optional<std::string> wholeText(const ClipboardItem& record);
inline constexpr std::size_t wholeLimit = std::size_t{8} << 20U;

}  // namespace recordlist

}  // namespace quillmonger
