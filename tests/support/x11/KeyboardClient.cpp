#include "tests/support/x11/KeyboardClient.h"

#include <xcb/xtest.h>

#include <stdexcept>

#include "Platform/x11/X11Requests.h"
#include "Platform/x11/Xkb.h"

namespace testsupport {

using platform::internAtom;
using platform::ReplyPointer;

namespace {

constexpr std::uint32_t keycodeOffset = 8;

}  // namespace

KeyboardClient::KeyboardClient(const std::string& display) : m_connection(xcb_connect(display.c_str(), nullptr)) {
  if (xcb_connection_has_error(m_connection) != 0) throw std::runtime_error("can't connect to the test's display");
  const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
  m_root = screen.root;
  m_window = xcb_generate_id(m_connection);
  const std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE;
  xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_root, 0, 0, 100, 100, 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  // As every toolkit does; without it groups show as modifiers.
  const ReplyPointer<xcb_xkb_use_extension_reply_t> isThere(xcb_xkb_use_extension_reply(
      m_connection, xcb_xkb_use_extension(m_connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION), nullptr));
}

KeyboardClient::~KeyboardClient() { xcb_disconnect(m_connection); }

// A round trip: everything sent before it has been done.
void KeyboardClient::settle() const { static_cast<void>(focus()); }

xcb_window_t KeyboardClient::focus() const {
  const ReplyPointer<xcb_get_input_focus_reply_t> reply(
      xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
  return reply ? reply->focus : xcb_window_t{XCB_NONE};
}

void KeyboardClient::send(std::uint8_t type, std::uint32_t evdevKey) {
  xcb_test_fake_input(m_connection, type, static_cast<std::uint8_t>(evdevKey + keycodeOffset), XCB_CURRENT_TIME,
                      XCB_NONE, 0, 0, 0);
  settle();
}

void KeyboardClient::press(std::uint32_t evdevKey) { send(XCB_KEY_PRESS, evdevKey); }
void KeyboardClient::release(std::uint32_t evdevKey) { send(XCB_KEY_RELEASE, evdevKey); }

void KeyboardClient::tap(std::uint32_t evdevKey) {
  press(evdevKey);
  release(evdevKey);
}

void KeyboardClient::lockGroup(std::uint8_t group) {
  xcb_xkb_latch_lock_state(m_connection, XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, group, 0, 0, 0);
  settle();
}

void KeyboardClient::listenToTheBell() {
  xcb_xkb_select_events(m_connection, XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_EVENT_TYPE_BELL_NOTIFY, 0,
                        XCB_XKB_EVENT_TYPE_BELL_NOTIFY, 0, 0, nullptr);
  settle();
}

bool KeyboardClient::heardTheBell() {
  const std::uint8_t firstEvent = xcb_get_extension_data(m_connection, &xcb_xkb_id)->first_event;
  while (const ReplyPointer<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
    const auto& bell = reinterpret_cast<const xcb_xkb_bell_notify_event_t&>(*event);
    if ((event->response_type & 0x7F) == firstEvent && bell.xkbType == XCB_XKB_BELL_NOTIFY) return true;
  }
  return false;
}

std::vector<xcb_keysym_t> KeyboardClient::symbols(std::uint32_t evdevKey) const {
  const auto key = static_cast<xcb_keycode_t>(evdevKey + keycodeOffset);
  const ReplyPointer<xcb_get_keyboard_mapping_reply_t> mapping(
      xcb_get_keyboard_mapping_reply(m_connection, xcb_get_keyboard_mapping(m_connection, key, 1), nullptr));
  if (!mapping) return {};
  const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
  return {symbols, symbols + xcb_get_keyboard_mapping_keysyms_length(mapping.get())};
}

bool KeyboardClient::grab(std::uint32_t evdevKey, std::uint16_t modifiers) {
  const auto cookie =
      xcb_grab_key_checked(m_connection, 0, m_root, modifiers, static_cast<xcb_keycode_t>(evdevKey + keycodeOffset),
                           XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
  const ReplyPointer<xcb_generic_error_t> error(xcb_request_check(m_connection, cookie));
  return error == nullptr;
}

bool KeyboardClient::grabKeyboard() {
  const auto cookie =
      xcb_grab_keyboard(m_connection, 1, m_window, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
  const ReplyPointer<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(m_connection, cookie, nullptr));
  return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void KeyboardClient::showWindow() {
  xcb_map_window(m_connection, m_window);
  settle();
}

void KeyboardClient::hideWindow() {
  xcb_unmap_window(m_connection, m_window);
  settle();
}

void KeyboardClient::focusWindow() {
  xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_POINTER_ROOT, m_window, XCB_CURRENT_TIME);
  settle();
}

void KeyboardClient::setWindowClass(const std::string& instanceName, const std::string& className) {
  const std::string names = instanceName + '\0' + className + '\0';
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                      static_cast<std::uint32_t>(names.size()), names.data());
  settle();
}

void KeyboardClient::setWindowProcess(std::uint32_t processId) {
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, 32, 1,
                      &processId);
  settle();
}

void KeyboardClient::ownClipboard() {
  xcb_set_selection_owner(m_connection, m_window, atom("CLIPBOARD"), XCB_CURRENT_TIME);
  settle();
}

void KeyboardClient::moveWindow(std::int16_t x, std::int16_t y) {
  const std::uint32_t values[] = {static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y)};
  xcb_configure_window(m_connection, m_window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, values);
  settle();
}

void KeyboardClient::setWindowAtom(const std::string& property, const std::string& value) {
  const xcb_atom_t number = atom(value);
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, atom(property), XCB_ATOM_ATOM, 32, 1, &number);
  settle();
}

void KeyboardClient::claimActive() {
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_root, atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 32, 1,
                      &m_window);
  settle();
}

void KeyboardClient::serveSettings(const std::string& settings) {
  const xcb_atom_t name = atom("_XSETTINGS_SETTINGS");
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, name, name, 8,
                      static_cast<std::uint32_t>(settings.size()), settings.data());
  xcb_set_selection_owner(m_connection, m_window, atom("_XSETTINGS_S0"), XCB_CURRENT_TIME);
  settle();
}

bool KeyboardClient::isUnderWindowManager() const { return platform::hasWindowManager(m_connection, m_root); }

std::vector<std::uint32_t> KeyboardClient::windowAtoms(const std::string& property) const {
  return platform::numbersProperty(m_connection, m_window, atom(property), XCB_ATOM_ATOM, 64);
}

std::optional<std::uint32_t> KeyboardClient::windowNumber(const std::string& property) const {
  const auto numbers = platform::numbersProperty(m_connection, m_window, atom(property), XCB_ATOM_CARDINAL, 1);
  return numbers.empty() ? std::nullopt : std::optional(numbers.front());
}

std::uint32_t KeyboardClient::atom(const std::string& name) const { return internAtom(m_connection, name); }

const std::vector<KeyboardClient::Key>& KeyboardClient::receivedKeys() {
  settle();
  while (const ReplyPointer<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
    const int type = event->response_type & 0x7F;
    if (type != XCB_KEY_PRESS && type != XCB_KEY_RELEASE) continue;
    const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(*event);
    m_received.push_back({key.detail - keycodeOffset, type == XCB_KEY_PRESS, key.state});
  }
  return m_received;
}

}  // namespace testsupport
