#include "Platform/x11/FrontmostWindow.h"

#include <unistd.h>

#include <array>
#include <limits>
#include <string>
#include <string_view>

#include "Platform/x11/X11Property.h"
#include "Platform/x11/X11Reply.h"

namespace platform {

namespace {

constexpr std::uint32_t wordLimit = 256;  // no honest name is longer than a kilobyte

xcb_get_property_cookie_t ask(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property) {
  return xcb_get_property(connection, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, wordLimit);
}

X11Property answer(xcb_connection_t* connection, xcb_get_property_cookie_t cookie) {
  X11Property value;
  const X11Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr));
  if (!reply) return value;
  value.type = reply->type;
  value.format = reply->format;
  value.bytes.assign(static_cast<const char*>(xcb_get_property_value(reply.get())),
                     static_cast<std::size_t>(xcb_get_property_value_length(reply.get())));
  return value;
}

// A window that does not name its machine is taken for one of ours.
bool isOfThisMachine(const X11Property& machine) {
  std::array<char, 256> host{};
  if (machine.format != 8 || machine.bytes.empty() || gethostname(host.data(), host.size() - 1) != 0) return true;
  return machine.bytes == std::string_view(host.data());
}

void setClass(WindowIdentity& identity, const X11Property& value) {
  if (value.format != 8) return;
  const std::size_t middle = value.bytes.find('\0');
  identity.instanceName = value.bytes.substr(0, middle);
  if (middle == std::string::npos) return;
  identity.className = value.bytes.substr(middle + 1, value.bytes.find('\0', middle + 1) - middle - 1);
}

}  // namespace

std::optional<WindowIdentity> frontmostWindow(xcb_connection_t* connection, xcb_window_t root, X11Atoms& atoms) {
  const auto active = answer(connection, ask(connection, root, atoms.atom("_NET_ACTIVE_WINDOW"))).numbers();
  if (active.empty() || active.front() == XCB_WINDOW_NONE) return std::nullopt;
  WindowIdentity identity;
  identity.window = active.front();
  const auto process = ask(connection, identity.window, atoms.atom("_NET_WM_PID"));
  const auto names = ask(connection, identity.window, XCB_ATOM_WM_CLASS);
  const auto machine = ask(connection, identity.window, XCB_ATOM_WM_CLIENT_MACHINE);
  const auto processNumbers = answer(connection, process).numbers();
  setClass(identity, answer(connection, names));
  const bool isLocal = isOfThisMachine(answer(connection, machine));
  const bool isProcess = !processNumbers.empty() && processNumbers.front() > 0 &&
                         processNumbers.front() <= std::numeric_limits<pid_t>::max();
  if (isLocal && isProcess) identity.processId = static_cast<pid_t>(processNumbers.front());
  return identity;
}

}  // namespace platform
