#include "Platform/x11/X11WindowSystem.h"

#include <algorithm>

#include "Platform/x11/X11Property.h"
#include "Platform/x11/X11Requests.h"
#include "Platform/x11/XSettings.h"

namespace platform {

namespace {

constexpr std::uint32_t stateLimit = 64;
constexpr std::size_t settingsLimit = std::size_t{256} << 10;
// A pager speaks for the user: a window manager that guards the focus lets its requests through.
constexpr std::uint32_t sourceIsPager = 2;

const xcb_screen_t* screenAt(xcb_connection_t* connection, int index) {
  xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
  for (; screens.rem > 0 && index > 0; --index)
    xcb_screen_next(&screens);
  return screens.rem > 0 ? screens.data : nullptr;
}

}  // namespace

std::unique_ptr<X11WindowSystem> X11WindowSystem::connect(const std::string& display) {
  int index = 0;
  xcb_connection_t* connection = xcb_connect(display.empty() ? nullptr : display.c_str(), &index);
  const xcb_screen_t* screen = xcb_connection_has_error(connection) != 0 ? nullptr : screenAt(connection, index);
  if (screen == nullptr) {
    xcb_disconnect(connection);
    return nullptr;
  }
  return std::unique_ptr<X11WindowSystem>(new X11WindowSystem(connection, *screen, index));
}

X11WindowSystem::X11WindowSystem(xcb_connection_t* connection, const xcb_screen_t& screen, int screenIndex)
    : m_connection(connection),
      m_root(screen.root),
      m_clock(xcb_generate_id(connection)),
      m_compositor(internAtom(connection, "_NET_WM_CM_S" + std::to_string(screenIndex))),
      m_state(internAtom(connection, "_NET_WM_STATE")),
      m_skipTaskbar(internAtom(connection, "_NET_WM_STATE_SKIP_TASKBAR")),
      m_skipPager(internAtom(connection, "_NET_WM_STATE_SKIP_PAGER")),
      m_activeWindow(internAtom(connection, "_NET_ACTIVE_WINDOW")),
      m_windowType(internAtom(connection, "_NET_WM_WINDOW_TYPE")),
      m_desktopType(internAtom(connection, "_NET_WM_WINDOW_TYPE_DESKTOP")),
      m_settingsOwner(internAtom(connection, "_XSETTINGS_S" + std::to_string(screenIndex))),
      m_settings(internAtom(connection, "_XSETTINGS_SETTINGS")) {
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(connection, XCB_COPY_FROM_PARENT, m_clock, m_root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                    XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  xcb_flush(connection);
}

X11WindowSystem::~X11WindowSystem() { xcb_disconnect(m_connection); }

xcb_window_t X11WindowSystem::owner(xcb_atom_t selection) const {
  const auto cookie = xcb_get_selection_owner(m_connection, selection);
  const ReplyPointer<xcb_get_selection_owner_reply_t> reply(
      xcb_get_selection_owner_reply(m_connection, cookie, nullptr));
  return reply ? reply->owner : xcb_window_t{XCB_NONE};
}

bool X11WindowSystem::blendsTransparency() const { return owner(m_compositor) != XCB_NONE; }

bool X11WindowSystem::reducesMotion() const {
  const xcb_window_t service = owner(m_settingsOwner);
  if (service == XCB_NONE) return false;
  const auto settings = readProperty(m_connection, service, m_settings, settingsLimit, AfterReading::keepProperty);
  return settings && xSettingsNumber(settings->bytes, "Gtk/EnableAnimations") == 0;
}

std::optional<quillmonger::WindowSystem::Pixel> X11WindowSystem::focusedWindowCentre() const {
  const auto active = numbersProperty(m_connection, m_root, m_activeWindow, XCB_ATOM_WINDOW, 1);
  if (active.empty() || active.front() == XCB_NONE) return std::nullopt;
  const auto types = numbersProperty(m_connection, active.front(), m_windowType, XCB_ATOM_ATOM, stateLimit);
  if (std::ranges::find(types, m_desktopType) != types.end()) return std::nullopt;
  const auto geometryCookie = xcb_get_geometry(m_connection, active.front());
  const auto placeCookie = xcb_translate_coordinates(m_connection, active.front(), m_root, 0, 0);
  const ReplyPointer<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(m_connection, geometryCookie, nullptr));
  const ReplyPointer<xcb_translate_coordinates_reply_t> place(
      xcb_translate_coordinates_reply(m_connection, placeCookie, nullptr));
  if (!geometry || !place) return std::nullopt;
  return Pixel{place->dst_x + geometry->width / 2, place->dst_y + geometry->height / 2};
}

// A hidden window's state is a property that its own program writes; the window manager reads it when it is shown.
void X11WindowSystem::keepOutOfTaskList(WindowId window) {
  const auto id = static_cast<xcb_window_t>(window);
  auto states = numbersProperty(m_connection, id, m_state, XCB_ATOM_ATOM, stateLimit);
  for (const xcb_atom_t wanted : {m_skipTaskbar, m_skipPager}) {
    if (std::ranges::find(states, wanted) == states.end()) states.push_back(wanted);
  }
  const auto change = xcb_change_property_checked(m_connection, XCB_PROP_MODE_REPLACE, id, m_state, XCB_ATOM_ATOM, 32,
                                                  static_cast<std::uint32_t>(states.size()), states.data());
  // Done before it returns, since the toolkit adds to the property on another connection.
  std::free(xcb_request_check(m_connection, change));
}

void X11WindowSystem::bringToFront(WindowId window) {
  const auto id = static_cast<xcb_window_t>(window);
  const xcb_timestamp_t now = serverTime();
  if (!hasWindowManager(m_connection, m_root)) {
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_POINTER_ROOT, id, now);
  } else {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = id;
    message.type = m_activeWindow;
    message.data.data32[0] = sourceIsPager;
    message.data.data32[1] = now;
    xcb_send_event(m_connection, 0, m_root, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
  }
  xcb_flush(m_connection);
}

void X11WindowSystem::beep() {
  constexpr std::int8_t usualVolume = 0;
  xcb_bell(m_connection, usualVolume);
  xcb_flush(m_connection);
}

xcb_timestamp_t X11WindowSystem::serverTime() const {
  xcb_change_property(m_connection, XCB_PROP_MODE_APPEND, m_clock, m_state, XCB_ATOM_ATOM, 32, 0, nullptr);
  xcb_flush(m_connection);
  // Only this window sends events here; errors of earlier requests stand among them.
  while (const ReplyPointer<xcb_generic_event_t> event{xcb_wait_for_event(m_connection)}) {
    if ((event->response_type & 0x7F) != XCB_PROPERTY_NOTIFY) continue;
    return reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->time;
  }
  return XCB_CURRENT_TIME;
}

}  // namespace platform
