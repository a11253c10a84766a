#pragma once

#include <xcb/xcb.h>

#include <cstdint>

namespace platform {

/// The window that owns a selection; none when nobody does. Waits for the server.
[[nodiscard]] xcb_window_t selectionOwner(xcb_connection_t* connection, xcb_atom_t selection);

struct SelectionTaking {
  /// The number of the request; the server's event about it has the same.
  std::uint32_t sequence;
  /// False when another program has taken the selection at a later time.
  bool isConfirmed;
};

/// Makes `window` the owner as of `time`, and asks whether it is. Waits for the server.
[[nodiscard]] SelectionTaking takeSelection(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t selection,
                                            xcb_timestamp_t time);

}  // namespace platform
