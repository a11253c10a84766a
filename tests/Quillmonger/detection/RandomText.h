#pragma once

#include <unicode/unistr.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace quillmonger {

/// The same numbers in every run, so that what fails once fails again.
class RandomText final {
 public:
  explicit RandomText(std::uint32_t seed) : m_engine(seed) {}

  /// From 0 up to but not including `end`.
  std::size_t below(std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(m_engine); }

  /// From 0 to 1.
  double fraction() { return std::uniform_real_distribution<double>(0, 1)(m_engine); }

  template <typename Item>
  const Item& oneOf(const std::vector<Item>& items) {
    return items[below(items.size())];
  }

  /// `text` with a character dropped, doubled or replaced, or one of `pieces` put in.
  std::string mutated(std::string_view text, const std::vector<std::string>& pieces) {
    auto units = icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
    const auto at = static_cast<std::int32_t>(below(static_cast<std::size_t>(units.length()) + 1));
    const auto piece = icu::UnicodeString::fromUTF8(oneOf(pieces));
    const std::int32_t start = units.getChar32Start(at);
    const std::int32_t end = units.moveIndex32(start, 1);
    const std::size_t change = below(4);
    if (change == 0) units.remove(start, end - start);
    if (change == 1) units.insert(start, units.tempSubString(start, end - start));
    if (change == 2) units.replace(start, end - start, piece);
    if (change == 3) units.insert(start, piece);
    std::string changed;
    units.toUTF8String(changed);
    return changed;
  }

 private:
  std::mt19937 m_engine;
};

}  // namespace quillmonger
