#include "Platform/x11/X11Requests.h"

namespace platform {

namespace {

constexpr std::uint32_t bytesLimit = 1024;

ReplyPointer<xcb_get_property_reply_t> property(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t name,
                                                xcb_atom_t type, std::uint32_t words) {
  const auto cookie = xcb_get_property(connection, 0, window, name, type, 0, words);
  return ReplyPointer<xcb_get_property_reply_t>(xcb_get_property_reply(connection, cookie, nullptr));
}

}  // namespace

xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name) {
  const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const ReplyPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::vector<std::uint32_t> numbersProperty(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t name,
                                           xcb_atom_t type, std::uint32_t limit) {
  const auto reply = property(connection, window, name, type, limit);
  if (!reply || reply->format != 32) return {};
  const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  return {first, first + reply->value_len};
}

std::string bytesProperty(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t name) {
  const auto reply = property(connection, window, name, XCB_GET_PROPERTY_TYPE_ANY, bytesLimit / 4);
  if (!reply || reply->format != 8) return {};
  return {static_cast<const char*>(xcb_get_property_value(reply.get())), reply->value_len};
}

bool hasWindowManager(xcb_connection_t* connection, xcb_window_t root) {
  const xcb_atom_t check = internAtom(connection, "_NET_SUPPORTING_WM_CHECK");
  const auto named = numbersProperty(connection, root, check, XCB_ATOM_WINDOW, 1);
  // A window manager that died leaves its mark on the root window, but not the window that the mark names.
  return !named.empty() && numbersProperty(connection, named.front(), check, XCB_ATOM_WINDOW, 1) == named;
}

}  // namespace platform
