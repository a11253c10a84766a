#pragma once

#include <chrono>
#include <memory>
#include <string_view>

#include "Quillmonger/detection/OculetDetectable.h"

namespace quillmonger {

/// A point in time in seconds since 1970, as far away as an integer of 64 bits can name.
using Instant = std::chrono::sys_time<std::chrono::duration<double>>;

/// Recognises a Unix time in seconds, milliseconds, microseconds or nanoseconds, a date and time of ISO 8601, or one of
/// a few date patterns in the words, digits and order of the locale of the moment. A date without a time means midnight
/// in the default time zone.
class DateDetector final : public OculetDetectable {
 public:
  struct DateResult final : OculetDetectionResult {
    explicit DateResult(Instant value) : date(value) {}
    const Instant date;
  };
  using DetectionResult = DateResult;

  [[nodiscard]] std::unique_ptr<const OculetDetectionResult> detect(std::string_view text) const override;
  /// Dates are short.
  [[nodiscard]] bool mayDetect(std::string_view /*start*/) const override { return false; }
};

}  // namespace quillmonger
