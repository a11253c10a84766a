#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Quillmonger/detection/Color.h"
#include "Quillmonger/detection/DateDetector.h"

namespace quillmonger {

/// A line of a panel: what was recognised, in one of the forms in which it can be copied.
struct OculetRow {
  std::string_view labelKey;
  std::string value;

  bool operator==(const OculetRow&) const = default;
};

/// The rows of the date panel: the Unix time, ISO 8601 in UTC, and RFC 2822 in the locale and the time zone of the
/// moment. A value that can't be written is empty. Stops the process for a date whose seconds since 1970 are no number
/// that 64 bits can hold.
[[nodiscard]] std::vector<OculetRow> dateRows(Instant date);
/// The rows of the colour panel. `color` has red, green and blue.
[[nodiscard]] std::vector<OculetRow> colorRows(const Color& color);

}  // namespace quillmonger
