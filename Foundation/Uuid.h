#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace foundation {

/// A universally unique identifier (RFC 4122, version 4 when made here).
class Uuid final {
 public:
  using Bytes = std::array<std::uint8_t, 16>;

  /// From the system's random numbers.
  [[nodiscard]] static Uuid random();
  /// From the 36-character form, in either case; absent for anything else.
  [[nodiscard]] static std::optional<Uuid> parse(std::string_view text);

  Uuid() = default;
  explicit Uuid(const Bytes& bytes) : m_bytes(bytes) {}

  [[nodiscard]] const Bytes& bytes() const { return m_bytes; }
  /// The 36-character form in upper case.
  [[nodiscard]] std::string toString() const;

  auto operator<=>(const Uuid&) const = default;

 private:
  Bytes m_bytes{};
};

}  // namespace foundation

template <>
struct std::hash<foundation::Uuid> {
  std::size_t operator()(const foundation::Uuid& uuid) const noexcept;
};
