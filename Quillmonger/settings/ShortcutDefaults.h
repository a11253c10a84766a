#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace quillmonger {

/// A global shortcut that the program declares, with the chord it has until the user chooses another.
struct ShortcutDefault {
  std::string_view name;
  /// Virtual key code of the ANSI layout.
  std::uint16_t keyCode;
  /// In the encoding of key events: Shift 0x20000, Command 0x100000.
  std::uint32_t modifiers;
};

namespace shortcuts {

inline constexpr ShortcutDefault activate{"activate", 9, 0x120000};
inline constexpr ShortcutDefault quickPaste1{"quickPaste1", 7, 0x120000};
inline constexpr ShortcutDefault quickPaste2{"quickPaste2", 14, 0x120000};
inline constexpr ShortcutDefault quickPaste3{"quickPaste3", 15, 0x120000};

inline constexpr std::array all{activate, quickPaste1, quickPaste2, quickPaste3};

}  // namespace shortcuts

}  // namespace quillmonger
