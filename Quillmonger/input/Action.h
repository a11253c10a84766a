#pragma once

#include <array>
#include <cstdint>

#include "Quillmonger/input/KeyEvent.h"

namespace quillmonger {

/// What a key event means to the program's windows.
enum class Action {
  select,         ///< take the selected row, or the row of a number key
  deleteItem,     ///< delete the selected row
  moveDown,       ///< move the selection down
  moveUp,         ///< move the selection up
  openSettings,   ///< open the settings window
  dismiss,        ///< close the history window
  optionChanged,  ///< the left Option key went down or up
  none            ///< nothing
};

/// The digit keys 1 to 9, by position and whatever the active layout types with them.
inline constexpr std::array<std::uint16_t, 9> quickPasteKeyCodes{18, 19, 20, 21, 23, 22, 26, 28, 25};

/// The row, from 0, that a digit key stands for; -1 for any other key code.
[[nodiscard]] int quickPasteIndex(std::uint16_t keyCode);

/// Classifies one event by its key code and modifiers alone. Only hardware positions count: the keypad's Enter and the
/// right Option key mean nothing.
[[nodiscard]] Action actionForEvent(const KeyEvent& event);

}  // namespace quillmonger
