#include "Quillmonger/detection/ColorDetector.h"

#include <unicode/regex.h>
#include <unicode/unistr.h>

#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "Foundation/Fatal.h"
#include "Quillmonger/detection/ColorText.h"

namespace quillmonger {

namespace {

using Groups = std::array<std::string, 3>;

std::unique_ptr<const icu::RegexPattern> compiled(const char16_t* expression) {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<const icu::RegexPattern> pattern(
      icu::RegexPattern::compile(expression, UREGEX_CASE_INSENSITIVE, status));
  if (U_FAILURE(status)) foundation::stopProcess("Failed to compile an expression for colors.");
  return pattern;
}

// Where `expression` matches `text`; null if it doesn't.
std::unique_ptr<icu::RegexMatcher> firstMatch(const icu::RegexPattern& expression, const icu::UnicodeString& text) {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::RegexMatcher> matcher(expression.matcher(text, status));
  const bool isFound = U_SUCCESS(status) && matcher->find(status);
  return isFound && U_SUCCESS(status) ? std::move(matcher) : nullptr;
}

std::string groupOf(const icu::RegexMatcher& match, std::int32_t number) {
  UErrorCode status = U_ZERO_ERROR;
  std::string text;
  match.group(number, status).toUTF8String(text);
  return text;
}

Groups groupsOf(const icu::RegexMatcher& match) { return {groupOf(match, 1), groupOf(match, 2), groupOf(match, 3)}; }

// The whole of `text` as a number.
template <typename Number>
std::optional<Number> numberIn(const std::string& text) {
  Number number = 0;
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return number;
}

std::optional<RGBColor> readHex(const icu::RegexPattern& expression, const icu::UnicodeString& text) {
  const auto match = firstMatch(expression, text);
  return match ? parseHex(groupOf(*match, 0)) : std::nullopt;
}

std::optional<RGBColor> readRGB(const icu::RegexPattern& expression, const icu::UnicodeString& text) {
  const auto match = firstMatch(expression, text);
  if (!match) return std::nullopt;
  constexpr std::int64_t maximum = 255;
  std::array<std::int64_t, 3> values{};
  const Groups groups = groupsOf(*match);
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const auto value = numberIn<std::int64_t>(groups[i]);
    if (!value) foundation::stopProcess("A component of rgb() must be a 64-bit integer.");
    values[i] = *value;
  }
  for (const std::int64_t value : values) {
    if (value < 0 || value > maximum) return std::nullopt;
  }
  const auto component = [&values](std::size_t i) { return static_cast<double>(values[i]) / maximum; };
  return RGBColor(component(0), component(1), component(2));
}

std::optional<RGBColor> readHSL(const icu::RegexPattern& expression, const icu::UnicodeString& text) {
  const auto match = firstMatch(expression, text);
  if (!match) return std::nullopt;
  constexpr std::array<double, 3> maxima{360, 100, 100};
  std::array<double, 3> components{};
  const Groups groups = groupsOf(*match);
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const auto value = numberIn<double>(groups[i]);
    if (!value || *value < 0 || *value > maxima[i]) return std::nullopt;
    components[i] = *value / maxima[i];
  }
  return rgbFromHSL(HSLColor(components[0], components[1], components[2]));
}

bool startsLikeHex(std::string_view text) {
  constexpr std::size_t longest = std::string_view("0xrrggbb\u2029").size();
  return text.size() <= longest && (text.front() == '#' || text.front() == '0');
}

// A call of a function of three letters; the second of hsl may be the two bytes of U+017F, whose upper case is S.
bool startsLikeCall(std::string_view text) {
  constexpr std::string_view initials = "rRhH";
  return initials.find(text.front()) != std::string_view::npos && text.substr(0, 5).find('(') != std::string_view::npos;
}

bool looksLikeCall(std::string_view text) {
  // A line end may follow the closing parenthesis, which is the only one.
  constexpr std::size_t longestEnd = std::string_view(")\u2029").size();
  const std::size_t closing = startsLikeCall(text) ? text.find(')') : std::string_view::npos;
  return closing != std::string_view::npos && text.size() - closing <= longestEnd;
}

}  // namespace

struct ColorDetector::Expressions {
  std::unique_ptr<const icu::RegexPattern> hexRegex = compiled(uR"(^(#|0x)(?:[0-9a-fA-F]{3}){1,2}$)");
  std::unique_ptr<const icu::RegexPattern> rgbRegex = compiled(uR"(^rgb\((\d+),\s*(\d+),\s*(\d+)\)$)");
  std::unique_ptr<const icu::RegexPattern> hslRegex =
      compiled(uR"(^hsl\((\d+(?:\.\d+)?),\s*(\d+(?:\.\d+)?)%,\s*(\d+(?:\.\d+)?)%\)$)");
};

ColorDetector::ColorDetector() : m_expressions(std::make_unique<const Expressions>()) {}
ColorDetector::~ColorDetector() = default;

bool ColorDetector::mayDetect(std::string_view start) const { return !start.empty() && startsLikeCall(start); }

std::unique_ptr<const OculetDetectionResult> ColorDetector::detect(std::string_view text) const {
  // Nearly all texts end here, so that a long one is converted only if an expression may match it.
  if (text.empty() || !(startsLikeHex(text) || looksLikeCall(text))) return nullptr;
  if (text.size() > std::numeric_limits<std::int32_t>::max()) return nullptr;
  const auto units = icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
  auto color = readHex(*m_expressions->hexRegex, units);
  if (!color) color = readRGB(*m_expressions->rgbRegex, units);
  if (!color) color = readHSL(*m_expressions->hslRegex, units);
  if (!color) return nullptr;
  return std::make_unique<const ColorResult>(makeColor(ColorSpace::genericRGB, *color));
}

}  // namespace quillmonger
