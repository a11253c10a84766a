#pragma once

#include <xcb/xcb.h>

#include <array>
#include <cstdint>
#include <utility>
#include <vector>

namespace platform {

/// The modifier keys of a server's keyboard, as they are mapped at this moment: which real modifier each of them acts
/// on, and which keys do so.
class X11Modifiers final {
 public:
  /// Asks the server, and waits for it. What it doesn't answer stands as on an ordinary keyboard.
  explicit X11Modifiers(xcb_connection_t* connection);

  /// A chord's modifiers, from the hot key service's bits to those of an event's state and back. Command is Super.
  [[nodiscard]] std::uint16_t state(std::uint32_t serviceModifiers) const;
  [[nodiscard]] std::uint32_t serviceModifiers(std::uint16_t state) const;
  /// Every set of lock modifiers that can be on, the empty one included: a chord counts with each of them.
  [[nodiscard]] std::vector<std::uint16_t> lockCombinations() const;
  /// The bits of all modifiers but the locks.
  [[nodiscard]] std::uint16_t chordMask() const { return static_cast<std::uint16_t>(0xFFU & ~m_locks); }

  /// The keys that act on any modifier but a lock.
  [[nodiscard]] const std::vector<xcb_keycode_t>& chordKeys() const { return m_chordKeys; }
  [[nodiscard]] xcb_keycode_t controlKey() const { return m_controlKey; }
  [[nodiscard]] xcb_keycode_t shiftKey() const { return m_shiftKey; }

 private:
  [[nodiscard]] std::array<std::pair<std::uint32_t, std::uint16_t>, 4> bits() const;

  std::uint16_t m_super = XCB_MOD_MASK_4;
  std::uint16_t m_alt = XCB_MOD_MASK_1;
  std::uint16_t m_locks = XCB_MOD_MASK_LOCK;
  std::vector<xcb_keycode_t> m_chordKeys;
  xcb_keycode_t m_controlKey;
  xcb_keycode_t m_shiftKey;
};

}  // namespace platform
