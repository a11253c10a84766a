#include "Platform/x11/XkbConnection.h"

#include <xkbcommon/xkbcommon-x11.h>

#include <memory>

#include "Platform/keyboard/XkbRulesNames.h"
#include "Platform/x11/X11Requests.h"
#include "Platform/x11/Xkb.h"

namespace platform {

namespace {

// What another program sent in the server's name has the top bit set, and so is of no type here.
std::uint8_t type(const xcb_generic_event_t& event) { return event.response_type; }

// Every event of XKB has one type; this says which it is.
std::uint8_t xkbType(const xcb_generic_event_t& event) {
  return reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event).xkbType;
}

}  // namespace

XkbConnection::XkbConnection(xcb_connection_t* connection, xcb_window_t root)
    : m_connection(connection), m_root(root), m_rulesNames(internAtom(connection, "_XKB_RULES_NAMES")) {
  const int isThere =
      xkb_x11_setup_xkb_extension(connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                                  XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, &m_firstEvent, nullptr);
  if (isThere != 0) selectEvents();
}

void XkbConnection::selectEvents() const {
  xcb_xkb_select_events_details_t details{};
  details.affectState = details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
  constexpr std::uint16_t whole = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
  constexpr std::uint16_t all = whole | XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
  constexpr std::uint16_t symbols = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS;
  xcb_xkb_select_events_aux(m_connection, XCB_XKB_ID_USE_CORE_KBD, all, 0, whole, symbols, symbols, &details);
  const std::uint32_t properties = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_change_window_attributes(m_connection, m_root, XCB_CW_EVENT_MASK, &properties);
}

std::optional<XkbKeymap> XkbConnection::keymap() const {
  if (m_firstEvent == 0) return std::nullopt;
  const auto flags = static_cast<xkb_context_flags>(XKB_CONTEXT_NO_DEFAULT_INCLUDES | XKB_CONTEXT_NO_ENVIRONMENT_NAMES);
  // The keymap keeps the context.
  const std::unique_ptr<xkb_context, decltype(&xkb_context_unref)> context(xkb_context_new(flags), xkb_context_unref);
  const std::int32_t device = xkb_x11_get_core_keyboard_device_id(m_connection);
  if (!context || device < 0) return std::nullopt;
  xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);
  xkb_keymap* keymap = xkb_x11_keymap_new_from_device(context.get(), m_connection, device, XKB_KEYMAP_COMPILE_NO_FLAGS);
  return keymap == nullptr ? std::nullopt : std::optional(XkbKeymap(keymap));
}

std::vector<std::string> XkbConnection::layoutIdentifiers() const {
  return platform::layoutIdentifiers(bytesProperty(m_connection, m_root, m_rulesNames));
}

std::size_t XkbConnection::group() const {
  if (m_firstEvent == 0) return 0;
  const ReplyPointer<xcb_xkb_get_state_reply_t> state(
      xcb_xkb_get_state_reply(m_connection, xcb_xkb_get_state(m_connection, XCB_XKB_ID_USE_CORE_KBD), nullptr));
  return state ? state->group : 0;
}

bool XkbConnection::isKeyboardChange(const xcb_generic_event_t& event) const {
  if (type(event) == XCB_PROPERTY_NOTIFY) {
    return reinterpret_cast<const xcb_property_notify_event_t&>(event).atom == m_rulesNames;
  }
  if (m_firstEvent == 0 || type(event) != m_firstEvent) return false;
  return xkbType(event) == XCB_XKB_NEW_KEYBOARD_NOTIFY || xkbType(event) == XCB_XKB_MAP_NOTIFY;
}

std::optional<std::size_t> XkbConnection::selectedGroup(const xcb_generic_event_t& event) const {
  if (m_firstEvent == 0 || type(event) != m_firstEvent || xkbType(event) != XCB_XKB_STATE_NOTIFY) return std::nullopt;
  return reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event).group;
}

}  // namespace platform
