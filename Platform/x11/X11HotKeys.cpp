#include "Platform/x11/X11HotKeys.h"

#include <cstdlib>
#include <future>
#include <map>
#include <utility>
#include <vector>

#include "Foundation/Output.h"
#include "Platform/keyboard/KeyCodeTable.h"
#include "Platform/x11/X11Modifiers.h"
#include "Platform/x11/Xkb.h"

namespace platform {

namespace {

constexpr std::uint32_t commandBit = 0x100;
constexpr std::uint32_t shiftBit = 0x200;
constexpr std::uint32_t optionBit = 0x800;
constexpr std::uint32_t controlBit = 0x1000;
constexpr std::chrono::seconds answerTime{2};

struct Chord {
  xcb_keycode_t key;
  std::uint32_t serviceModifiers;
};

// Held keys then repeat their press alone, so that a release is one.
void askForDetectableAutoRepeat(xcb_connection_t* connection) {
  const auto use = xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
  std::free(xcb_xkb_use_extension_reply(connection, use, nullptr));
  constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
  const auto set = xcb_xkb_per_client_flags(connection, XCB_XKB_ID_USE_CORE_KBD, flag, flag, 0, 0, 0);
  std::free(xcb_xkb_per_client_flags_reply(connection, set, nullptr));
}

}  // namespace

// What the server holds for us. On the thread alone once that is started.
class X11HotKeys::Grabs final {
 public:
  Grabs(xcb_connection_t* connection, xcb_window_t root, std::function<void(std::uint32_t, Kind)> tell)
      : m_connection(connection), m_root(root), m_modifiers(connection), m_tell(std::move(tell)) {
    askForDetectableAutoRepeat(connection);
  }

  bool add(std::uint32_t identifier, const Chord& chord) {
    remove(identifier);
    if (!grab(chord)) return false;
    m_chords.emplace(identifier, chord);
    return true;
  }

  void remove(std::uint32_t identifier) {
    const auto found = m_chords.find(identifier);
    if (found == m_chords.end()) return;
    ungrab(found->second);
    m_chords.erase(found);
    std::erase_if(m_held, [identifier](const auto& held) { return held.second == identifier; });
  }

  void handle(const xcb_generic_event_t& event) {
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

 private:
  [[nodiscard]] std::uint16_t state(const Chord& chord) const {
    std::uint16_t state = 0;
    if ((chord.serviceModifiers & commandBit) != 0) state |= m_modifiers.super();
    if ((chord.serviceModifiers & shiftBit) != 0) state |= XCB_MOD_MASK_SHIFT;
    if ((chord.serviceModifiers & optionBit) != 0) state |= m_modifiers.alt();
    if ((chord.serviceModifiers & controlBit) != 0) state |= XCB_MOD_MASK_CONTROL;
    return state;
  }

  // All or nothing: a chord that works only while Num Lock is off would be worse than none.
  bool grab(const Chord& chord) {
    std::vector<xcb_void_cookie_t> requests;
    for (const std::uint16_t locks : m_modifiers.lockCombinations()) {
      requests.push_back(xcb_grab_key_checked(m_connection, 1, m_root, static_cast<std::uint16_t>(state(chord) | locks),
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

  void ungrab(const Chord& chord) {
    for (const std::uint16_t locks : m_modifiers.lockCombinations()) {
      xcb_ungrab_key(m_connection, chord.key, m_root, static_cast<std::uint16_t>(state(chord) | locks));
    }
  }

  void press(const xcb_key_press_event_t& event) {
    for (const auto& [identifier, chord] : m_chords) {
      const bool isIt = chord.key == event.detail && (event.state & m_modifiers.chordMask()) == state(chord);
      if (!isIt) continue;
      if (m_held.emplace(event.detail, identifier).second) m_tell(identifier, Kind::pressed);
      return;
    }
  }

  // By the key alone: the modifiers may have been let go of before it.
  void release(const xcb_key_release_event_t& event) {
    const auto held = m_held.extract(event.detail);
    if (held) m_tell(held.mapped(), Kind::released);
  }

  void renew() {
    for (const auto& [identifier, chord] : m_chords)
      ungrab(chord);
    m_modifiers = X11Modifiers(m_connection);
    for (const auto& [identifier, chord] : m_chords) {
      if (!grab(chord)) foundation::printLine("A global shortcut was lost when the keyboard mapping changed.");
    }
  }

  xcb_connection_t* m_connection;
  xcb_window_t m_root;
  X11Modifiers m_modifiers;
  std::function<void(std::uint32_t, Kind)> m_tell;
  std::map<std::uint32_t, Chord> m_chords;
  std::map<xcb_keycode_t, std::uint32_t> m_held;
};

std::unique_ptr<X11HotKeys> X11HotKeys::connect(foundation::RunLoop& runLoop, const std::string& display) {
  auto thread = X11Thread::connect(display);
  if (!thread) return nullptr;
  return std::unique_ptr<X11HotKeys>(new X11HotKeys(std::move(thread), runLoop));
}

X11HotKeys::X11HotKeys(std::unique_ptr<X11Thread> thread, foundation::RunLoop& runLoop)
    : m_runLoop(runLoop),
      m_grabs(std::make_unique<Grabs>(thread->connection(), thread->screen().root,
                                      [this](std::uint32_t identifier, Kind kind) { tell(identifier, kind); })),
      m_thread(std::move(thread)) {
  m_thread->start([this](const xcb_generic_event_t& event) { m_grabs->handle(event); },
                  [] { foundation::printLine("The connection for global shortcuts was lost."); });
}

X11HotKeys::~X11HotKeys() = default;

void X11HotKeys::setHandler(Handler handler) { *m_handler = std::move(handler); }

void X11HotKeys::tell(std::uint32_t identifier, Kind kind) {
  m_runLoop.post([weak = std::weak_ptr(m_handler), identifier, kind] {
    const auto handler = weak.lock();
    if (handler && *handler) (*handler)(identifier, kind);
  });
}

bool X11HotKeys::registerHotKey(std::uint32_t identifier, std::uint32_t keyCode, std::uint32_t modifiers) {
  const auto key = evdevKey(keyCode);
  if (!key) return false;
  const Chord chord{static_cast<xcb_keycode_t>(*key + x11KeycodeOffset), modifiers};
  const auto isGranted = std::make_shared<std::promise<bool>>();
  auto answer = isGranted->get_future();
  m_thread->run([this, identifier, chord, isGranted] { isGranted->set_value(m_grabs->add(identifier, chord)); });
  if (answer.wait_for(answerTime) == std::future_status::ready) return answer.get();
  // Granted after all, the chord would be taken from the other programs for nobody.
  unregisterHotKey(identifier);
  return false;
}

void X11HotKeys::unregisterHotKey(std::uint32_t identifier) {
  m_thread->run([this, identifier] { m_grabs->remove(identifier); });
}

}  // namespace platform
