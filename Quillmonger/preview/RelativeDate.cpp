#include "Quillmonger/preview/RelativeDate.h"

#include <unicode/locid.h>
#include <unicode/reldatefmt.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillmonger {

namespace {

struct Unit {
  double seconds;
  URelativeDateTimeUnit name;
};

constexpr double day = 86'400;
constexpr double year = 365.2425 * day;
constexpr std::array<Unit, 7> units{{{year, UDAT_REL_UNIT_YEAR},
                                     {year / 12, UDAT_REL_UNIT_MONTH},
                                     {7 * day, UDAT_REL_UNIT_WEEK},
                                     {day, UDAT_REL_UNIT_DAY},
                                     {3600, UDAT_REL_UNIT_HOUR},
                                     {60, UDAT_REL_UNIT_MINUTE},
                                     {1, UDAT_REL_UNIT_SECOND}}};

}  // namespace

RelativeDate relativeDate(foundation::Date date, foundation::Date now) {
  const double distance = foundation::Seconds(date - now).count();
  const auto fits = [distance](const Unit& unit) { return std::abs(distance) >= unit.seconds; };
  const auto found = std::ranges::find_if(units, fits);
  const Unit& unit = found == units.end() ? units.back() : *found;
  // The present counts as past: what has been copied just now was "0 seconds ago".
  const double number = std::copysign(std::trunc(std::abs(distance) / unit.seconds), distance > 0 ? 1 : -1);
  UErrorCode status = U_ZERO_ERROR;
  const icu::RelativeDateTimeFormatter formatter(icu::Locale::getDefault(), status);
  icu::UnicodeString text;
  if (U_SUCCESS(status)) formatter.formatNumeric(number, unit.name, text, status);
  std::string result;
  if (U_SUCCESS(status)) text.toUTF8String(result);
  return {result, foundation::Seconds(unit.seconds)};
}

}  // namespace quillmonger
