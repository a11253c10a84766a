#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Quillmonger/capture/ClipboardItem.h"

namespace quillmonger {

/// The history as the user's own command prints it. Main thread.
namespace recordlist {

/// Of an item's text no more is printed.
inline constexpr std::size_t characterLimit = 1000;

/// One line for each record: date, size, application and the text's beginning, without control characters.
[[nodiscard]] std::string lines(const std::vector<std::shared_ptr<ClipboardItem>>& records);
/// A JSON list of objects {id, creationDate, sourceAppBundleIdentifier, types, size, timesPasted, text}. Dates are UTC
/// in ISO 8601; an application or text that a record doesn't have is null.
[[nodiscard]] std::string json(const std::vector<std::shared_ptr<ClipboardItem>>& records);

}  // namespace recordlist

}  // namespace quillmonger
