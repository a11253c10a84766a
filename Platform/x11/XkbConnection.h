#pragma once

#include <xcb/xcb.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Platform/keyboard/XkbKeymap.h"

namespace platform {

/// What an X server says of its keyboard through XKB. For the thread that uses the connection; each question waits for
/// the server. A server without XKB answers none, and sends no event.
class XkbConnection final {
 public:
  /// From now on the server sends the events that the two questions below understand.
  XkbConnection(xcb_connection_t* connection, xcb_window_t root);

  [[nodiscard]] std::optional<XkbKeymap> keymap() const;
  /// Of the keymap's layouts, as far as the root window tells them.
  [[nodiscard]] std::vector<std::string> layoutIdentifiers() const;
  /// The effective one.
  [[nodiscard]] std::size_t group() const;

  /// Whether the keymap or the names of its layouts may be others now.
  [[nodiscard]] bool isKeyboardChange(const xcb_generic_event_t& event) const;
  /// The group that the event tells was switched to.
  [[nodiscard]] std::optional<std::size_t> selectedGroup(const xcb_generic_event_t& event) const;

 private:
  void selectEvents() const;

  xcb_connection_t* m_connection;
  xcb_window_t m_root;
  xcb_atom_t m_rulesNames;
  /// The type of all events of XKB; 0 without XKB.
  std::uint8_t m_firstEvent = 0;
};

}  // namespace platform
