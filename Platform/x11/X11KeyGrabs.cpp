#include "Platform/x11/X11KeyGrabs.h"

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

#include "Foundation/Output.h"
#include "Platform/x11/X11Requests.h"
#include "Platform/x11/Xkb.h"

namespace platform {

namespace {

using keyboardshortcuts::EventType;

// Held keys then repeat their press alone, so that a release is one.
void askForDetectableAutoRepeat(xcb_connection_t* connection) {
  const auto use = xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
  std::free(xcb_xkb_use_extension_reply(connection, use, nullptr));
  constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
  const auto set = xcb_xkb_per_client_flags(connection, XCB_XKB_ID_USE_CORE_KBD, flag, flag, 0, 0, 0);
  std::free(xcb_xkb_per_client_flags_reply(connection, set, nullptr));
}

}  // namespace

X11KeyGrabs::X11KeyGrabs(xcb_connection_t* connection, xcb_window_t root, Tell tell)
    : m_connection(connection), m_root(root), m_modifiers(connection), m_tell(std::move(tell)) {
  askForDetectableAutoRepeat(connection);
}

bool X11KeyGrabs::add(const Identifier& identifier, const Chord& chord) {
  remove(identifier);
  if (!isHeldByUs(chord) && !grab(chord)) return false;
  m_chords.emplace(identifier, chord);
  return true;
}

void X11KeyGrabs::remove(const Identifier& identifier) {
  const auto removed = m_chords.extract(identifier);
  if (!removed) return;
  if (!isHeldByUs(removed.mapped())) ungrab(removed.mapped());
}

bool X11KeyGrabs::isHeldByAnother(const Chord& chord) {
  if (isHeldByUs(chord)) return false;
  if (!grab(chord)) return true;
  ungrab(chord);
  return false;
}

void X11KeyGrabs::handle(const xcb_generic_event_t& event) {
  switch (event.response_type & 0x7F) {
    case XCB_KEY_PRESS:
      press(reinterpret_cast<const xcb_key_press_event_t&>(event));
      break;
    case XCB_KEY_RELEASE:
      release(reinterpret_cast<const xcb_key_release_event_t&>(event));
      break;
    case XCB_MAPPING_NOTIFY:
      renew();
      break;
    default:
      break;
  }
}

bool X11KeyGrabs::isHeldByUs(const Chord& chord) const {
  const auto state = [this](const Chord& it) { return std::pair(it.key, m_modifiers.state(it.serviceModifiers)); };
  return std::ranges::any_of(m_chords, [&](const auto& entry) { return state(entry.second) == state(chord); });
}

// All or nothing: a chord that works only while Num Lock is off would be worse than none.
bool X11KeyGrabs::grab(const Chord& chord) {
  const std::uint16_t state = m_modifiers.state(chord.serviceModifiers);
  std::vector<xcb_void_cookie_t> requests;
  for (const std::uint16_t locks : m_modifiers.lockCombinations()) {
    requests.push_back(xcb_grab_key_checked(m_connection, 1, m_root, static_cast<std::uint16_t>(state | locks),
                                            chord.key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
  }
  bool isGranted = xcb_connection_has_error(m_connection) == 0;
  for (const xcb_void_cookie_t request : requests) {
    xcb_generic_error_t* error = xcb_request_check(m_connection, request);
    isGranted = isGranted && error == nullptr;
    std::free(error);
  }
  if (!isGranted) ungrab(chord);
  return isGranted;
}

void X11KeyGrabs::ungrab(const Chord& chord) {
  const std::uint16_t state = m_modifiers.state(chord.serviceModifiers);
  for (const std::uint16_t locks : m_modifiers.lockCombinations()) {
    xcb_ungrab_key(m_connection, chord.key, m_root, static_cast<std::uint16_t>(state | locks));
  }
}

void X11KeyGrabs::press(const xcb_key_press_event_t& event) {
  for (const auto& [identifier, chord] : m_chords) {
    const std::uint16_t state = m_modifiers.state(chord.serviceModifiers);
    if (chord.key != event.detail || (event.state & m_modifiers.chordMask()) != state) continue;
    if (m_held.contains(event.detail)) return;  // it repeats
    const bool isRolled = !m_held.empty();
    m_held.emplace(event.detail, chord);
    m_isChordHeld = true;
    tell(chord, EventType::keyDown);
    if (isRolled) keepKeyboard(event);
    return;
  }
}

// By the key alone: the modifiers may have been let go of before it.
void X11KeyGrabs::release(const xcb_key_release_event_t& event) {
  letGo(event.detail);
  if (m_isKeyboardKept) letGoOfReleased(event.time);
}

// With the key that was pressed first, the server would give the keyboard back to the others, and what becomes of this
// one would never be heard.
void X11KeyGrabs::keepKeyboard(const xcb_key_press_event_t& rolled) {
  const auto request =
      xcb_grab_keyboard(m_connection, 0, m_root, rolled.time, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
  const ReplyPointer<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(m_connection, request, nullptr));
  if (!reply || reply->status != XCB_GRAB_STATUS_SUCCESS) return letGo(rolled.detail);
  m_isKeyboardKept = true;
  letGoOfReleased(rolled.time);
}

// A key that was let go of before the keyboard was kept may have been so unheard.
void X11KeyGrabs::letGoOfReleased(xcb_timestamp_t time) {
  const ReplyPointer<xcb_query_keymap_reply_t> down(
      xcb_query_keymap_reply(m_connection, xcb_query_keymap(m_connection), nullptr));
  const auto isDown = [&down](xcb_keycode_t key) { return down && (down->keys[key / 8] >> (key % 8U) & 1U) != 0; };
  for (const auto& [key, chord] : std::map(m_held)) {
    if (!isDown(key)) letGo(key);
  }
  if (!m_held.empty()) return;
  xcb_ungrab_keyboard(m_connection, time);
  m_isKeyboardKept = false;
}

void X11KeyGrabs::letGo(xcb_keycode_t key) {
  const auto held = m_held.extract(key);
  m_isChordHeld = !m_held.empty();
  if (held) tell(held.mapped(), EventType::keyUp);
}

// The first hot key of the chord gets it.
void X11KeyGrabs::tell(const Chord& chord, EventType type) const {
  const auto found = std::ranges::find_if(m_chords, [&chord](const auto& entry) { return entry.second == chord; });
  if (found != m_chords.end()) m_tell(found->first, type);
}

void X11KeyGrabs::renew() {
  for (const auto& [identifier, chord] : m_chords)
    ungrab(chord);
  m_modifiers = X11Modifiers(m_connection);
  for (const auto& [identifier, chord] : m_chords) {
    if (!grab(chord)) foundation::printLine("A global shortcut was lost when the keyboard mapping changed.");
  }
}

}  // namespace platform
