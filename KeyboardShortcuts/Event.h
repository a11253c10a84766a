#pragma once

#include <cstdint>
#include <optional>

namespace keyboardshortcuts {

/// One input event of the program's own windows, as far as a chord can come of it.
struct Event {
  enum class Type { keyDown, keyUp, flagsChanged, leftMouseUp, rightMouseUp };
  /// In points, from the top left corner of its window.
  struct Location {
    double x = 0;
    double y = 0;
  };

  Type type = Type::keyDown;
  /// A virtual key code of the ANSI layout, by position; absent for a key of no known position.
  std::optional<std::uint16_t> keyCode{};
  /// The modifiers held, as event flags (Sauce/ModifierTransformer.h).
  std::uint32_t modifierFlags = 0;
  /// Of the pointer; only a mouse event has it.
  Location location{};
};

}  // namespace keyboardshortcuts
