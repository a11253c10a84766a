#pragma once

#include <cstdint>

namespace quillmonger {

/// One key event of the application's own windows.
struct KeyEvent {
  enum class Type { keyDown, flagsChanged };
  Type type = Type::keyDown;
  /// A virtual key code of the ANSI layout, by the key's position and not by what the layout types with it.
  std::uint16_t keyCode = 0;
  /// The modifiers held after the event, as `ModifierFlag` bits.
  std::uint32_t modifierFlags = 0;
  /// Of a key that is held down.
  bool isRepeat = false;
};

/// Command is the Control key of this desktop's keyboards inside the program; Option is the left Alt key.
enum ModifierFlag : std::uint32_t {
  shiftFlag = 0x20000,
  controlFlag = 0x40000,
  optionFlag = 0x80000,
  commandFlag = 0x100000,
};

}  // namespace quillmonger
