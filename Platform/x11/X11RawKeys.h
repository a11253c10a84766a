#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <functional>

#include "KeyboardShortcuts/HotKeyService.h"

namespace platform {

/// Every key of the keyboard, told by XInput 2 as it goes down and up, past whatever program has grabbed it. On the
/// connection's thread, which has asked for the XKB extension.
class X11RawKeys final {
 public:
  /// `keyCode`: virtual key code by position. `modifiers`: service bits.
  using Tell = std::function<void(std::uint32_t keyCode, std::uint32_t modifiers, keyboardshortcuts::EventType)>;

  /// Watches nothing yet. A server without XInput 2 never tells anything.
  X11RawKeys(xcb_connection_t* connection, xcb_window_t root, Tell tell);

  void watch(bool isWatching);
  void handle(const xcb_generic_event_t& event);

 private:
  void handleRawKey(const xcb_generic_event_t& event);
  [[nodiscard]] std::uint16_t heldModifiers() const;

  xcb_connection_t* m_connection;
  xcb_window_t m_root;
  Tell m_tell;
  std::uint8_t m_opcode = 0;  // of XInput; 0 without it
  std::uint8_t m_xkbEvent = 0;
  std::uint16_t m_held = 0;  // real modifiers
};

}  // namespace platform
