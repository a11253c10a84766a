#pragma once

#include <xcb/xcb.h>

#include <atomic>
#include <functional>
#include <map>

#include "KeyboardShortcuts/HotKeyService.h"
#include "Platform/x11/X11Modifiers.h"

namespace platform {

/// The chords that the server holds for us, as passive grabs of the root window. On the connection's thread.
class X11KeyGrabs final {
 public:
  using Identifier = keyboardshortcuts::HotKeyIdentifier;
  using Tell = std::function<void(const Identifier&, keyboardshortcuts::EventType)>;
  struct Chord {
    xcb_keycode_t key;
    std::uint32_t serviceModifiers;
    bool operator==(const Chord&) const = default;
  };

  /// `tell` is called on the connection's thread.
  X11KeyGrabs(xcb_connection_t* connection, xcb_window_t root, Tell tell);

  /// False when another program holds the chord.
  bool add(const Identifier& identifier, const Chord& chord);
  void remove(const Identifier& identifier);
  /// By a grab that is taken back at once.
  [[nodiscard]] bool isHeldByAnother(const Chord& chord);

  void handle(const xcb_generic_event_t& event);

  /// Until its key is let go of, a chord that was pressed keeps all keys from the other programs. On any thread.
  [[nodiscard]] bool isChordHeld() const { return m_isChordHeld; }

 private:
  bool grab(const Chord& chord);
  void ungrab(const Chord& chord);
  [[nodiscard]] bool isHeldByUs(const Chord& chord) const;
  void tell(const Chord& chord, keyboardshortcuts::EventType type) const;
  void press(const xcb_key_press_event_t& event);
  void release(const xcb_key_release_event_t& event);
  void keepKeyboard(const xcb_key_press_event_t& rolled);
  void letGoOfReleased(xcb_timestamp_t time);
  void letGo(xcb_keycode_t key);
  void renew();

  xcb_connection_t* m_connection;
  xcb_window_t m_root;
  X11Modifiers m_modifiers;
  Tell m_tell;
  std::map<Identifier, Chord> m_chords;
  /// By its chord: while it is held, the chord can get another identifier or the same one anew.
  std::map<xcb_keycode_t, Chord> m_held;
  bool m_isKeyboardKept = false;  // beyond the release of the first of several held keys
  std::atomic<bool> m_isChordHeld = false;
};

}  // namespace platform
