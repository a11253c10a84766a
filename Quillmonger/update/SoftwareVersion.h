#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillmonger {

/// A version such as "1.10.2" or "2.0-beta.3": numbers, and after "-" what comes before them. Any thread.
class SoftwareVersion final {
 public:
  /// Bytes.
  static constexpr std::size_t sizeLimit = 64;

  /// Absent for anything else, and for numbers of more than nine digits.
  [[nodiscard]] static std::optional<SoftwareVersion> parse(std::string_view text);

  /// By the numbers from left to right, where missing ones count as 0; then "2.0-beta.3" comes before "2.0", and its
  /// parts compare as numbers where both are, as text where both are, and a number comes before a text.
  [[nodiscard]] std::strong_ordering operator<=>(const SoftwareVersion& other) const;
  [[nodiscard]] bool operator==(const SoftwareVersion& other) const = default;

 private:
  using Part = std::variant<std::uint32_t, std::string>;

  /// Without zeros at the end.
  std::vector<std::uint32_t> m_numbers;
  std::vector<Part> m_preRelease;
};

}  // namespace quillmonger
