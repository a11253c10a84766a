#include "Platform/x11/SelectionOwnership.h"

#include "Platform/x11/X11Reply.h"

namespace platform {

xcb_window_t selectionOwner(xcb_connection_t* connection, xcb_atom_t selection) {
  const X11Reply<xcb_get_selection_owner_reply_t> reply(
      xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr));
  return reply ? reply->owner : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

SelectionTaking takeSelection(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t selection,
                              xcb_timestamp_t time) {
  const std::uint32_t sequence = xcb_set_selection_owner(connection, window, selection, time).sequence;
  return {.sequence = sequence, .isConfirmed = selectionOwner(connection, selection) == window};
}

}  // namespace platform
