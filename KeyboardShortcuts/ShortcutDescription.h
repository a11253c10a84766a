#pragma once

#include <optional>
#include <string>

#include "KeyboardShortcuts/Shortcut.h"
#include "Sauce/InputSourceService.h"

namespace keyboardshortcuts {

/// How a chord is read: "Ctrl+Alt+Shift+Super+V" in words, "⌃⌥⇧⌘V" in signs.
enum class ShortcutStyle { words, signs };

/// The chord as the user reads it: its modifiers in a fixed order, then its key, as the layout for Latin letters has
/// it. A key without a name that types nothing leaves the modifiers alone.
[[nodiscard]] std::string description(const Shortcut& shortcut, const sauce::InputSourceService& inputSources,
                                      ShortcutStyle style = ShortcutStyle::words);

/// The character of the chord's key without modifiers, in lower case; absent for a key that types none.
[[nodiscard]] std::optional<std::string> characterOf(const Shortcut& shortcut,
                                                     const sauce::InputSourceService& inputSources);

}  // namespace keyboardshortcuts
