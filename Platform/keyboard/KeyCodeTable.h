#pragma once

#include <cstdint>
#include <optional>

namespace platform {

/// Keys by their position. The program names a position by its virtual key code of the ANSI layout; the kernel and the
/// display servers on top of it number the same positions differently. Any thread.

/// The virtual key code of an evdev key; absent for a key that the ANSI layout doesn't know.
[[nodiscard]] std::optional<std::uint16_t> virtualKeyCode(std::uint32_t evdevKey);
/// The evdev key of a virtual key code; absent for a position that no keyboard here has.
[[nodiscard]] std::optional<std::uint32_t> evdevKey(std::uint32_t virtualKeyCode);

/// An X11 (and xkb) key code is the evdev key moved up by this.
inline constexpr std::uint32_t x11KeycodeOffset = 8;

}  // namespace platform
