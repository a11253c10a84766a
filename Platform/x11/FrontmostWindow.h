#pragma once

#include <optional>

#include "Platform/freedesktop/WindowIdentity.h"
#include "Platform/x11/X11Atoms.h"

namespace platform {

/// The window that the window manager says is in front, and what that window says of itself; absent when there is no
/// window manager or no such window. Waits for the server.
[[nodiscard]] std::optional<WindowIdentity> frontmostWindow(xcb_connection_t* connection, xcb_window_t root,
                                                            X11Atoms& atoms);

}  // namespace platform
