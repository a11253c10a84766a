#include "Quillmonger/detection/DatePatterns.h"

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>

namespace quillmonger {

namespace {

using Patterns = std::array<const char16_t*, 5>;

constexpr const char16_t* dayFirst = u"dd/MM/yyyy";
constexpr const char16_t* monthFirst = u"MM/dd/yyyy";

Patterns patternsFor(const icu::Locale& locale) {
  const bool isAmerican = std::string_view(locale.getName()).ends_with("_US");
  return {u"EEEE, dd-MMM-yy HH:mm:ss xxxx", u"yyyy-MM-dd'T'HH:mm:ssZ", u"yyyy-MM-dd",
          isAmerican ? monthFirst : dayFirst, isAmerican ? dayFirst : monthFirst};
}

icu::UnicodeString toUtf16(std::string_view text) {
  return icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
}

bool isAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// The two bytes of CR LF are one character, the only one of ASCII that has more than one.
std::size_t countOfLineEnds(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = text.find("\r\n"); at != std::string_view::npos; at = text.find("\r\n", at + 2))
    ++count;
  return count;
}

}  // namespace

std::optional<double> readDatePattern(std::string_view text) {
  icu::Locale locale = icu::Locale::getDefault();
  const Patterns patterns = patternsFor(locale);
  UErrorCode status = U_ZERO_ERROR;
  // A year in digits is a year of this calendar, wherever the user lives.
  locale.setKeywordValue("calendar", "gregorian", status);
  icu::SimpleDateFormat formatter(patterns.front(), locale, status);
  if (U_FAILURE(status)) return std::nullopt;
  formatter.setLenient(false);
  const icu::UnicodeString units = toUtf16(text);
  for (const char16_t* pattern : patterns) {
    formatter.applyPattern(pattern);
    icu::ParsePosition position(0);
    const UDate milliseconds = formatter.parse(units, position);
    if (position.getErrorIndex() < 0 && position.getIndex() == units.length()) return milliseconds / 1000;
  }
  return std::nullopt;
}

bool hasAtMostCharacters(std::string_view text, std::size_t count) {
  if (text.size() <= count) return true;
  if (isAscii(text)) return text.size() - countOfLineEnds(text) <= count;
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::BreakIterator> characters(
      icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  if (U_FAILURE(status)) return false;
  const icu::UnicodeString units = toUtf16(text);
  characters->setText(units);
  const std::int32_t end = characters->next(static_cast<std::int32_t>(count));
  return end == icu::BreakIterator::DONE || end == units.length();
}

}  // namespace quillmonger
