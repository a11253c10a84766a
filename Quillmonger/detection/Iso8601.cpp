#include "Quillmonger/detection/Iso8601.h"

#include <cstddef>

namespace quillmonger {

namespace {

bool isDigit(char byte) { return byte >= '0' && byte <= '9'; }

// `form` has '9' for a digit; other characters stand for themselves.
bool hasForm(std::string_view text, std::string_view form) {
  if (text.size() != form.size()) return false;
  for (std::size_t i = 0; i < form.size(); ++i) {
    if (form[i] == '9' ? !isDigit(text[i]) : text[i] != form[i]) return false;
  }
  return true;
}

int numberAt(std::string_view text, std::size_t start, std::size_t length) {
  int number = 0;
  for (const char digit : text.substr(start, length))
    number = number * 10 + (digit - '0');
  return number;
}

std::optional<std::chrono::minutes> readOffset(std::string_view text) {
  if (text == "Z") return std::chrono::minutes(0);
  if (!text.starts_with('+') && !text.starts_with('-')) return std::nullopt;
  const std::string_view digits = text.substr(1);
  if (!hasForm(digits, "99:99") && !hasForm(digits, "9999")) return std::nullopt;
  const int hours = numberAt(digits, 0, 2);
  const int minutes = numberAt(digits, digits.size() - 2, 2);
  if (hours > 23 || minutes > 59) return std::nullopt;
  const auto offset = std::chrono::hours(hours) + std::chrono::minutes(minutes);
  return text.front() == '-' ? -offset : offset;
}

}  // namespace

std::optional<std::chrono::sys_seconds> readIso8601(std::string_view text) {
  constexpr std::string_view form = "9999-99-99T99:99:99";
  if (text.size() <= form.size() || !hasForm(text.substr(0, form.size()), form)) return std::nullopt;
  const auto offset = readOffset(text.substr(form.size()));
  const std::chrono::year_month_day day(std::chrono::year(numberAt(text, 0, 4)),
                                        std::chrono::month(static_cast<unsigned>(numberAt(text, 5, 2))),
                                        std::chrono::day(static_cast<unsigned>(numberAt(text, 8, 2))));
  const int hour = numberAt(text, 11, 2);
  const int minute = numberAt(text, 14, 2);
  const int second = numberAt(text, 17, 2);
  if (!offset || !day.ok() || hour > 23 || minute > 59 || second > 59) return std::nullopt;
  return std::chrono::sys_days(day) + std::chrono::hours(hour) + std::chrono::minutes(minute) +
         std::chrono::seconds(second) - *offset;
}

}  // namespace quillmonger
