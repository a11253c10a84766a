#pragma once

#include <cstdint>

namespace keyboardshortcuts {

/// One input event of the program's own windows, as far as a chord can come of it.
struct Event {
  enum class Type { keyDown, keyUp, flagsChanged, leftMouseUp, rightMouseUp };
  Type type = Type::keyDown;
  /// A virtual key code of the ANSI layout, by position.
  std::uint16_t keyCode = 0;
  /// The modifiers held, as event flags (Sauce/ModifierTransformer.h).
  std::uint32_t modifierFlags = 0;
};

}  // namespace keyboardshortcuts
