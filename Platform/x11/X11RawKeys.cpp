#include "Platform/x11/X11RawKeys.h"

#include <xcb/xinput.h>

#include <utility>

#include "Platform/keyboard/KeyCodeTable.h"
#include "Platform/x11/X11Modifiers.h"
#include "Platform/x11/X11Reply.h"

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
  const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &xcb_input_id);
  if (extension != nullptr && extension->present != 0 && hasRawKeys(connection)) m_opcode = extension->major_opcode;
}

void X11RawKeys::watch(bool isWatching) {
  if (m_opcode == 0) return;
  struct {
    xcb_input_event_mask_t head;
    std::uint32_t mask;
  } const events{{XCB_INPUT_DEVICE_ALL_MASTER, 1},
                 isWatching ? XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE : 0U};
  xcb_input_xi_select_events(m_connection, m_root, 1, &events.head);
}

void X11RawKeys::handle(const xcb_generic_event_t& event) {
  if ((event.response_type & 0x7F) != XCB_GE_GENERIC || m_opcode == 0) return;
  const auto& raw = reinterpret_cast<const xcb_input_raw_key_press_event_t&>(event);
  if (raw.extension != m_opcode) return;
  const bool isPress = raw.event_type == XCB_INPUT_RAW_KEY_PRESS;
  if (!isPress && raw.event_type != XCB_INPUT_RAW_KEY_RELEASE) return;
  if ((raw.flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT) != 0 || raw.detail < x11KeycodeOffset) return;
  const auto keyCode = virtualKeyCode(raw.detail - x11KeycodeOffset);
  if (keyCode) m_tell(*keyCode, heldModifiers(), isPress ? EventType::keyDown : EventType::keyUp);
}

// The event itself has none.
std::uint32_t X11RawKeys::heldModifiers() const {
  const X11Reply<xcb_query_pointer_reply_t> state(
      xcb_query_pointer_reply(m_connection, xcb_query_pointer(m_connection, m_root), nullptr));
  return state ? X11Modifiers(m_connection).serviceModifiers(state->mask) : 0;
}

}  // namespace platform
