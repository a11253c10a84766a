#include "Quillmonger/preview/OculetRows.h"

#include <unicode/locid.h>
#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>
#include <unicode/unistr.h>

#include <cmath>
#include <cstdint>
#include <cstdio>

#include "Foundation/Fatal.h"
#include "Quillmonger/detection/ColorText.h"
#include "Quillmonger/detection/HSLColor.h"

namespace quillmonger {

namespace {

// The first number above and the last one below that no integer of 64 bits reaches.
constexpr double above = 0x1p63;
constexpr double millisecondsPerSecond = 1000;
// What the calendar of the formatter can hold, in milliseconds since 1970.
constexpr double earliestFormatted = -184303902528000000.0;
constexpr double latestFormatted = 183882168921600000.0;

std::int64_t wholeSeconds(Instant date) {
  const double seconds = date.time_since_epoch().count();
  if (!(seconds >= -above && seconds < above))
    foundation::stopProcess("A date is further away than 64 bits can count.");
  return static_cast<std::int64_t>(seconds);
}

std::string utf8(const icu::UnicodeString& string) {
  std::string text;
  return string.toUTF8String(text);
}

std::string unixText(std::int64_t seconds) {
  UErrorCode status = U_ZERO_ERROR;
  const auto text = icu::number::NumberFormatter::withLocale(icu::Locale::getDefault())
                        .grouping(UNUM_GROUPING_OFF)
                        .formatInt(seconds, status)
                        .toString(status);
  return U_SUCCESS(status) ? utf8(text) : std::string();
}

struct Day {
  std::int64_t year;
  int month;
  int day;
};

// Of the Gregorian calendar, for every number of days since 1970. The calendar of the standard library ends with the
// year 32767.
Day dayOf(std::int64_t days) {
  constexpr std::int64_t daysOfEra = 146'097;  // 400 years
  const std::int64_t sinceMarch = days + 719'468;
  const std::int64_t era = (sinceMarch >= 0 ? sinceMarch : sinceMarch - (daysOfEra - 1)) / daysOfEra;
  const std::int64_t dayOfEra = sinceMarch - era * daysOfEra;
  const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
  const auto day = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
  const auto month = static_cast<int>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
  return {yearOfEra + era * 400 + (month <= 2 ? 1 : 0), month, day};
}

std::string iso8601Text(std::int64_t seconds) {
  constexpr std::int64_t secondsOfDay = 86'400;
  std::int64_t days = seconds / secondsOfDay;
  std::int64_t rest = seconds % secondsOfDay;
  if (rest < 0) {
    rest += secondsOfDay;
    --days;
  }
  const Day day = dayOf(days);
  char text[48];
  std::snprintf(text, sizeof text, "%s%04lld-%02d-%02dT%02d:%02d:%02dZ", day.year < 0 ? "-" : "",
                static_cast<long long>(std::abs(day.year)), day.month, day.day, static_cast<int>(rest / 3600),
                static_cast<int>(rest / 60 % 60), static_cast<int>(rest % 60));
  return text;
}

std::string rfc2822Text(Instant date) {
  const double milliseconds = date.time_since_epoch().count() * millisecondsPerSecond;
  if (milliseconds < earliestFormatted || milliseconds > latestFormatted) return {};
  UErrorCode status = U_ZERO_ERROR;
  const icu::SimpleDateFormat formatter(icu::UnicodeString(u"EE, dd MMM yyyy HH:mm:ss xxxx"), icu::Locale::getDefault(),
                                        status);
  if (U_FAILURE(status)) return {};
  icu::UnicodeString text;
  return utf8(formatter.format(milliseconds, text));
}

}  // namespace

std::vector<OculetRow> dateRows(Instant date) {
  const std::int64_t seconds = wholeSeconds(date);
  return {{"unix_string", unixText(seconds)},
          // The fraction counts back from the next second before 1970.
          {"iso8601_string", iso8601Text(wholeSeconds(floor<std::chrono::seconds>(date)))},
          {"rfc_2822", rfc2822Text(date)}};
}

std::vector<OculetRow> colorRows(const Color& color) {
  const RGBColor components = colorComponents(color, ColorSpace::genericRGB);
  return {{"hex_string", hexString(components)},
          {"rgb_string", rgbString(components)},
          {"hsl_string", hslString(hslFromRGB(components))}};
}

}  // namespace quillmonger
