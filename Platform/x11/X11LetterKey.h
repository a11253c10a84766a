#pragma once

#include <xcb/xcb.h>

#include <cstdint>

namespace platform {

/// A key that types a letter while this group of the keymap is active.
struct X11LetterKey {
  xcb_keycode_t key;
  std::uint8_t group;
};

/// Where programs see the letter "v", so that a chord of it is one to each of them: some look at the letter, some at
/// the key's place. That is `preferred`, under the active group or, where that is for another script, under one that
/// has the letter; else another key that types it. A keymap for one script without the letter gets it as a second group
/// of `preferred`, where nobody comes by typing, and keeps it: a program may look up what the press meant later. Waits
/// for the server; what can't be had is `preferred` and the active group.
[[nodiscard]] X11LetterKey keyOfV(xcb_connection_t* connection, xcb_keycode_t preferred, std::uint8_t activeGroup);

}  // namespace platform
