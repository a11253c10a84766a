#include "Quillmonger/update/SoftwareVersion.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace quillmonger {

namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

bool isWordCharacter(char character) {
  return isDigit(character) || (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

std::optional<std::uint32_t> number(std::string_view text) {
  constexpr std::size_t digitLimit = 9;
  if (text.empty() || text.size() > digitLimit || !std::ranges::all_of(text, isDigit)) return std::nullopt;
  std::uint32_t value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

// "a.b.c" as its parts; an empty text has one, which is empty.
std::vector<std::string_view> split(std::string_view text) {
  std::vector<std::string_view> parts;
  for (;;) {
    const auto dot = text.find('.');
    parts.push_back(text.substr(0, dot));
    if (dot == std::string_view::npos) return parts;
    text.remove_prefix(dot + 1);
  }
}

}  // namespace

std::optional<SoftwareVersion> SoftwareVersion::parse(std::string_view text) {
  if (text.size() > sizeLimit) return std::nullopt;
  SoftwareVersion version;
  const auto dash = text.find('-');
  for (const auto part : split(text.substr(0, dash))) {
    const auto value = number(part);
    if (!value) return std::nullopt;
    version.m_numbers.push_back(*value);
  }
  while (!version.m_numbers.empty() && version.m_numbers.back() == 0)
    version.m_numbers.pop_back();
  if (dash == std::string_view::npos) return version;
  for (const auto part : split(text.substr(dash + 1))) {
    if (part.empty() || !std::ranges::all_of(part, isWordCharacter)) return std::nullopt;
    const auto value = number(part);
    version.m_preRelease.push_back(value ? Part(*value) : Part(std::string(part)));
  }
  return version;
}

std::strong_ordering SoftwareVersion::operator<=>(const SoftwareVersion& other) const {
  if (const auto order = m_numbers <=> other.m_numbers; std::is_neq(order)) return order;
  if (m_preRelease.empty() || other.m_preRelease.empty()) return m_preRelease.empty() <=> other.m_preRelease.empty();
  return m_preRelease <=> other.m_preRelease;
}

}  // namespace quillmonger
