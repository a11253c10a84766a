#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace keyboardshortcuts {

/// A key chord: a virtual key code of the ANSI layout, and modifiers in the hot key service's bits.
struct Shortcut {
  std::int64_t carbonKeyCode = 0;
  std::int64_t carbonModifiers = 0;

  bool operator==(const Shortcut&) const = default;

  /// The stored form: a JSON object with the two members.
  [[nodiscard]] std::string toJson() const;
  /// Absent for anything that isn't such an object.
  [[nodiscard]] static std::optional<Shortcut> fromJson(std::string_view text);
};

}  // namespace keyboardshortcuts
