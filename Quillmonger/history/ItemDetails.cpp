#include "Quillmonger/history/ItemDetails.h"

#include <unicode/locid.h>
#include <unicode/msgfmt.h>
#include <unicode/numberformatter.h>
#include <unicode/unistr.h>

#include <array>
#include <cmath>

namespace quillmonger {

namespace {

struct Unit {
  double size;
  int decimals;
  std::string_view key;
};

// A number that rounds up to 1,000 of a unit is one of the next.
constexpr std::array<Unit, 5> units{{{1e3, 0, "byte_count_kilobytes"},
                                     {1e6, 1, "byte_count_megabytes"},
                                     {1e9, 2, "byte_count_gigabytes"},
                                     {1e12, 2, "byte_count_terabytes"},
                                     {1e15, 2, "byte_count_petabytes"}}};
constexpr double thousand = 1000;
constexpr const char* detailSeparator = " • ";

double rounded(double number, int decimals) {
  const double scale = std::pow(10.0, decimals);
  return std::round(number * scale) / scale;
}

const Unit& unitOf(double byteCount) {
  std::size_t index = 0;
  while (index + 1 < units.size() && rounded(byteCount / units[index].size, units[index].decimals) >= thousand)
    ++index;
  return units[index];
}

icu::UnicodeString decimal(double number, int decimals) {
  UErrorCode status = U_ZERO_ERROR;
  return icu::number::NumberFormatter::withLocale(icu::Locale::getDefault())
      .precision(icu::number::Precision::maxFraction(decimals))
      .formatDouble(number, status)
      .toString(status);
}

// The message under `key` with `argument` in place of "{0}", and its plural form where it has several.
std::string message(const foundation::TextLookup& texts, std::string_view key, const icu::Formattable& argument) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::MessageFormat format(icu::UnicodeString::fromUTF8(texts(key)), icu::Locale::getDefault(), status);
  icu::FieldPosition ignored;
  icu::UnicodeString whole;
  format.format(&argument, 1, whole, ignored, status);
  std::string text;
  return U_SUCCESS(status) ? whole.toUTF8String(text) : std::string();
}

// The bytes of the line end at `at`, or 0.
std::size_t lineEndLength(std::string_view text, std::size_t at) {
  if (text[at] == '\n') return 1;
  if (text[at] == '\r') return text.substr(at).starts_with("\r\n") ? 2 : 1;
  const auto rest = text.substr(at, 3);
  if (rest.starts_with("\u0085")) return 2;
  return rest == "\u2028" || rest == "\u2029" ? 3 : 0;
}

}  // namespace

std::string byteCountText(std::int64_t byteCount, const foundation::TextLookup& texts) {
  if (byteCount == 0) return texts("byte_count_zero");
  const auto bytes = static_cast<double>(byteCount);
  if (bytes < thousand) return message(texts, "byte_count_bytes", icu::Formattable(byteCount));
  const Unit& unit = unitOf(bytes);
  return message(texts, unit.key, icu::Formattable(decimal(bytes / unit.size, unit.decimals)));
}

std::string pictureSizeText(const PictureSize& size) {
  constexpr int decimals = 3;
  std::string text;
  decimal(size.width, decimals).toUTF8String(text);
  text += "×";
  return decimal(size.height, decimals).toUTF8String(text);
}

std::string lineCountText(std::size_t count, const foundation::TextLookup& texts) {
  return message(texts, "%lld lines", icu::Formattable(static_cast<std::int64_t>(count)));
}

std::string textDetails(std::int64_t byteCount, std::size_t count, const foundation::TextLookup& texts) {
  return byteCountText(byteCount, texts) + detailSeparator + lineCountText(count, texts);
}

std::string pictureDetails(std::int64_t byteCount, const PictureSize& size, const foundation::TextLookup& texts) {
  return byteCountText(byteCount, texts) + detailSeparator + pictureSizeText(size);
}

std::string pasteCountText(std::int64_t count, const foundation::TextLookup& texts) {
  return message(texts, "Pasted %lld times", icu::Formattable(count));
}

std::size_t lineCount(std::string_view text) {
  std::size_t count = 0;
  bool isInLine = false;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = lineEndLength(text, at);
    // An empty line counts, so that each line end closes one.
    if (length > 0) ++count;
    isInLine = length == 0;
    at += length > 0 ? length : 1;
  }
  return count + (isInLine ? 1 : 0);
}

}  // namespace quillmonger
