#pragma once

#include <QString>

namespace quillmonger {

/// An installed font that has emoji in colour; empty when there is none. Main thread.
[[nodiscard]] QString colourEmojiFamily();

/// Has every text of the program show emoji in that font, whatever other fonts have the same characters in black and
/// white. Looks for the usual font, which takes some milliseconds. Before the first view. Main thread.
void preferColourEmoji();

}  // namespace quillmonger
