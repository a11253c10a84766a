#pragma once

#include <array>

#include "KeyboardShortcuts/Name.h"

namespace quillmonger {

/// The program's global chords, with the chords that stand until the user picks others.
namespace shortcutname {

/// Shows the history, or hides it.
[[nodiscard]] const keyboardshortcuts::Name& activate();
/// Paste the first three items of the history.
[[nodiscard]] const std::array<keyboardshortcuts::Name, 3>& quickPaste();

}  // namespace shortcutname

}  // namespace quillmonger
