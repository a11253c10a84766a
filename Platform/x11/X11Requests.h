#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// The few requests that several services make. Each asks the server and waits for it, on the thread that uses the
/// connection; what isn't answered is empty. Windows of other programs can vanish at any moment, and their properties
/// hold anything.

template <typename Reply>
struct FreeReply {
  void operator()(Reply* reply) const { std::free(reply); }
};
/// What a request returned; null when it failed.
template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, FreeReply<Reply>>;

/// The atom of a name, made if it isn't there.
[[nodiscard]] xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name);
/// At most `limit` numbers of a property of this type; empty when it is missing or of another type.
[[nodiscard]] std::vector<std::uint32_t> numbersProperty(xcb_connection_t* connection, xcb_window_t window,
                                                         xcb_atom_t property, xcb_atom_t type, std::uint32_t limit);
/// At most 1 KB of a property, whatever its type.
[[nodiscard]] std::string bytesProperty(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property);
/// Whether a window manager that keeps to the freedesktop rules runs.
[[nodiscard]] bool hasWindowManager(xcb_connection_t* connection, xcb_window_t root);

}  // namespace platform
