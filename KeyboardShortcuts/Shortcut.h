#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "KeyboardShortcuts/Event.h"
#include "Sauce/Key.h"

namespace keyboardshortcuts {

/// A key chord: a virtual key code of the ANSI layout, and modifiers in the hot key service's bits.
struct Shortcut {
  std::int64_t carbonKeyCode = 0;
  std::int64_t carbonModifiers = 0;

  bool operator==(const Shortcut&) const = default;

  /// The key at its place on the ANSI keyboard, with modifiers as event flags. Absent for a key without such a place.
  [[nodiscard]] static std::optional<Shortcut> of(sauce::Key key, std::uint32_t eventFlags);
  /// What a press or release stands for; absent for any other event, and for a key of no known position.
  [[nodiscard]] static std::optional<Shortcut> of(const Event& event);

  /// The stored form: a JSON object with the two members.
  [[nodiscard]] std::string toJson() const;
  /// Absent for anything that isn't such an object.
  [[nodiscard]] static std::optional<Shortcut> fromJson(std::string_view text);
};

}  // namespace keyboardshortcuts

template <>
struct std::hash<keyboardshortcuts::Shortcut> {
  std::size_t operator()(const keyboardshortcuts::Shortcut& shortcut) const noexcept;
};
