#include "Quillmonger/detection/DateDetector.h"

#include <charconv>
#include <cstdint>
#include <optional>

#include "Quillmonger/detection/DatePatterns.h"
#include "Quillmonger/detection/DateShape.h"
#include "Quillmonger/detection/Iso8601.h"

namespace quillmonger {

namespace {

constexpr std::size_t longestInCharacters = 100;

std::optional<std::int64_t> integerIn(std::string_view text) {
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return std::nullopt;
  }
  std::int64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return number;
}

// The size says the unit. What is less than a second is dropped.
std::int64_t unixSeconds(std::int64_t number) {
  if (number <= 9'999'999'999) return number;
  if (number <= 9'999'999'999'999) return number / 1'000;
  if (number <= 9'999'999'999'999'999) return number / 1'000'000;
  return number / 1'000'000'000;
}

Instant instantOf(double seconds) { return Instant(std::chrono::duration<double>(seconds)); }

std::optional<Instant> readDate(std::string_view text) {
  // An integer and the ISO form are ASCII, so that their bytes are their characters.
  if (text.size() <= longestInCharacters) {
    if (const auto number = integerIn(text)) return instantOf(static_cast<double>(unixSeconds(*number)));
    if (const auto moment = readIso8601(text)) return Instant(*moment);
  }
  // Formatters are dear: most texts end here.
  if (!isShapedLikeDatePattern(text) || !hasAtMostCharacters(text, longestInCharacters)) return std::nullopt;
  const auto seconds = readDatePattern(text);
  return seconds ? std::optional(instantOf(*seconds)) : std::nullopt;
}

}  // namespace

std::unique_ptr<const OculetDetectionResult> DateDetector::detect(std::string_view text) const {
  const auto date = readDate(text);
  return date ? std::make_unique<const DateResult>(*date) : nullptr;
}

}  // namespace quillmonger
