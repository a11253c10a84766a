#include "Platform/x11/X11RawKeys.h"

#include <xcb/xinput.h>

#include <utility>

#include "Platform/keyboard/KeyCodeTable.h"
#include "Platform/x11/X11Modifiers.h"
#include "Platform/x11/X11Reply.h"
#include "Platform/x11/Xkb.h"

namespace platform {

namespace {

using keyboardshortcuts::EventType;

// Raw keys are told past the grabs of others since 2.1.
constexpr std::uint16_t leastMajor = 2;
constexpr std::uint16_t leastMinor = 1;

bool hasRawKeys(xcb_connection_t* connection) {
  const X11Reply<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
      connection, xcb_input_xi_query_version(connection, leastMajor, leastMinor), nullptr));
  return version && (version->major_version > leastMajor ||
                     (version->major_version == leastMajor && version->minor_version >= leastMinor));
}

}  // namespace

X11RawKeys::X11RawKeys(xcb_connection_t* connection, xcb_window_t root, Tell tell)
    : m_connection(connection), m_root(root), m_tell(std::move(tell)) {
  const xcb_query_extension_reply_t* input = xcb_get_extension_data(connection, &xcb_input_id);
  const xcb_query_extension_reply_t* xkb = xcb_get_extension_data(connection, &xcb_xkb_id);
  if (input == nullptr || input->present == 0 || xkb == nullptr || xkb->present == 0) return;
  m_xkbEvent = xkb->first_event;
  if (hasRawKeys(connection)) m_opcode = input->major_opcode;
}

// A raw key comes without its modifiers; the keyboard's state is told on the same connection, in the order of the keys.
void X11RawKeys::watch(bool isWatching) {
  if (m_opcode == 0) return;
  constexpr std::uint16_t state = XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
  constexpr std::uint16_t modifiers = XCB_XKB_STATE_PART_MODIFIER_STATE;
  const std::uint16_t wanted = isWatching ? modifiers : std::uint16_t{0};
  xcb_xkb_select_events_details_t details{};
  details.affectState = modifiers;
  details.stateDetails = wanted;
  xcb_xkb_select_events_aux(m_connection, XCB_XKB_ID_USE_CORE_KBD, state, 0, 0, 0, 0, &details);
  struct {
    xcb_input_event_mask_t head;
    std::uint32_t mask;
  } const keys{{XCB_INPUT_DEVICE_ALL_MASTER, 1},
               isWatching ? XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE : 0U};
  xcb_input_xi_select_events(m_connection, m_root, 1, &keys.head);
  if (isWatching) m_held = heldModifiers();
}

void X11RawKeys::handle(const xcb_generic_event_t& event) {
  const std::uint8_t type = event.response_type & 0x7F;
  if (m_opcode == 0) return;
  if (type == XCB_GE_GENERIC) {
    handleRawKey(event);
  } else if (type == m_xkbEvent) {
    const auto& state = reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event);
    if (state.xkbType == XCB_XKB_STATE_NOTIFY) m_held = state.mods;
  }
}

void X11RawKeys::handleRawKey(const xcb_generic_event_t& event) {
  const auto& raw = reinterpret_cast<const xcb_input_raw_key_press_event_t&>(event);
  if (raw.extension != m_opcode) return;
  const bool isPress = raw.event_type == XCB_INPUT_RAW_KEY_PRESS;
  if (!isPress && raw.event_type != XCB_INPUT_RAW_KEY_RELEASE) return;
  if ((raw.flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT) != 0 || raw.detail < x11KeycodeOffset) return;
  const auto keyCode = virtualKeyCode(raw.detail - x11KeycodeOffset);
  if (!keyCode) return;
  m_tell(*keyCode, X11Modifiers(m_connection).serviceModifiers(m_held),
         isPress ? EventType::keyDown : EventType::keyUp);
}

std::uint16_t X11RawKeys::heldModifiers() const {
  const X11Reply<xcb_query_pointer_reply_t> state(
      xcb_query_pointer_reply(m_connection, xcb_query_pointer(m_connection, m_root), nullptr));
  return state ? state->mask : std::uint16_t{0};
}

}  // namespace platform
