#include "KeyboardShortcuts/ShortcutDescription.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "Foundation/Text.h"

namespace keyboardshortcuts {

namespace {

struct Label {
  std::int64_t code;
  const char* word;
  const char* sign;
};

// In the order in which they are read. The last is the function key's flag.
constexpr auto modifiers = std::to_array<Label>({{0x1000, "Ctrl", "\u2303"},
                                                 {0x800, "Alt", "\u2325"},
                                                 {0x200, "Shift", "\u21E7"},
                                                 {0x100, "Super", "\u2318"},
                                                 {0x800000, "Fn", "\U0001F310"}});

constexpr auto namedKeys = std::to_array<Label>({{36, "Return", "\u21A9"},
                                                 {48, "Tab", "\u21E5"},
                                                 {49, "Space", "Space"},
                                                 {51, "Backspace", "\u232B"},
                                                 {53, "Esc", "\u238B"},
                                                 {76, "Enter", "\u2305"},
                                                 {71, "Num Lock", "\u2327"},
                                                 {114, "Help", "?\u20DD"},
                                                 {115, "Home", "\u2196"},
                                                 {116, "Page Up", "\u21DE"},
                                                 {117, "Delete", "\u2326"},
                                                 {119, "End", "\u2198"},
                                                 {121, "Page Down", "\u21DF"},
                                                 {123, "Left", "\u2190"},
                                                 {124, "Right", "\u2192"},
                                                 {125, "Down", "\u2193"},
                                                 {126, "Up", "\u2191"},
                                                 {122, "F1", "F1"},
                                                 {120, "F2", "F2"},
                                                 {99, "F3", "F3"},
                                                 {118, "F4", "F4"},
                                                 {96, "F5", "F5"},
                                                 {97, "F6", "F6"},
                                                 {98, "F7", "F7"},
                                                 {100, "F8", "F8"},
                                                 {101, "F9", "F9"},
                                                 {109, "F10", "F10"},
                                                 {103, "F11", "F11"},
                                                 {111, "F12", "F12"},
                                                 {105, "F13", "F13"},
                                                 {107, "F14", "F14"},
                                                 {113, "F15", "F15"},
                                                 {106, "F16", "F16"},
                                                 {64, "F17", "F17"},
                                                 {79, "F18", "F18"},
                                                 {80, "F19", "F19"},
                                                 {90, "F20", "F20"},
                                                 {65, "Keypad .", ".\u20E3"},
                                                 {67, "Keypad *", "*\u20E3"},
                                                 {69, "Keypad +", "+\u20E3"},
                                                 {75, "Keypad /", "/\u20E3"},
                                                 {78, "Keypad -", "-\u20E3"},
                                                 {81, "Keypad =", "=\u20E3"},
                                                 {82, "Keypad 0", "0\u20E3"},
                                                 {83, "Keypad 1", "1\u20E3"},
                                                 {84, "Keypad 2", "2\u20E3"},
                                                 {85, "Keypad 3", "3\u20E3"},
                                                 {86, "Keypad 4", "4\u20E3"},
                                                 {87, "Keypad 5", "5\u20E3"},
                                                 {88, "Keypad 6", "6\u20E3"},
                                                 {89, "Keypad 7", "7\u20E3"},
                                                 {91, "Keypad 8", "8\u20E3"},
                                                 {92, "Keypad 9", "9\u20E3"}});

const char* textOf(const Label& label, ShortcutStyle style) {
  return style == ShortcutStyle::words ? label.word : label.sign;
}

std::string keyText(const Shortcut& shortcut, const sauce::InputSourceService& inputSources, ShortcutStyle style) {
  const auto named = std::ranges::find(namedKeys, shortcut.carbonKeyCode, &Label::code);
  if (named != namedKeys.end()) return textOf(*named, style);
  return foundation::uppercased(characterOf(shortcut, inputSources).value_or(""));
}

}  // namespace

std::string description(const Shortcut& shortcut, const sauce::InputSourceService& inputSources, ShortcutStyle style) {
  const std::string_view separator = style == ShortcutStyle::words ? "+" : "";
  std::string text;
  const auto append = [&](std::string_view part) {
    if (!text.empty() && !part.empty()) text += separator;
    text += part;
  };
  for (const Label& modifier : modifiers) {
    if ((shortcut.carbonModifiers & modifier.code) != 0) append(textOf(modifier, style));
  }
  append(keyText(shortcut, inputSources, style));
  return text;
}

std::optional<std::string> characterOf(const Shortcut& shortcut, const sauce::InputSourceService& inputSources) {
  constexpr std::int64_t lastKeyCode = 127;
  const auto source = inputSources.currentASCIICapableInputSource();
  if (!source || shortcut.carbonKeyCode < 0 || shortcut.carbonKeyCode > lastKeyCode) return std::nullopt;
  const auto text = inputSources.translate(*source, static_cast<sauce::KeyCode>(shortcut.carbonKeyCode), 0);
  return text ? std::optional(foundation::lowercased(*text)) : std::nullopt;
}

}  // namespace keyboardshortcuts
