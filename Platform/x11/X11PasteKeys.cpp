#include "Platform/x11/X11PasteKeys.h"

#include <unistd.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "Foundation/Output.h"
#include "Platform/keyboard/KeyCodeTable.h"
#include "Platform/x11/X11LetterKey.h"
#include "Platform/x11/X11Modifiers.h"
#include "Platform/x11/X11Requests.h"
#include "Platform/x11/Xkb.h"

namespace platform {

namespace {

constexpr std::chrono::milliseconds pollInterval{5};
constexpr int treeDepthLimit = 32;
constexpr xcb_keycode_t positionV = 47 + x11KeycodeOffset;

// In lower case; whatever a desktop entry doesn't tell.
constexpr auto terminalClasses = std::to_array<std::string_view>(
    {"alacritty", "cool-retro-term", "foot",    "ghostty",        "gnome-terminal", "gnome-terminal-server",
     "guake",     "kitty",           "konsole", "lxterminal",     "mate-terminal",  "qterminal",
     "rxvt",      "sakura",          "st",      "st-256color",    "terminator",     "tilda",
     "tilix",     "urxvt",           "wezterm", "xfce4-terminal", "xterm",          "yakuake"});

std::string lowered(std::string_view text) {
  std::string result(text);
  std::ranges::transform(result, result.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return result;
}

}  // namespace

// One paste at a time: a later one takes the place of one that still waits. On the thread alone.
class X11PasteKeys::Injector final {
 public:
  Injector(X11Thread& thread, WrittenWindow writtenWindow, TerminalPredicate isTerminal, ChordPredicate isChordHeld,
           const Patience& patience)
      : m_thread(thread),
        m_connection(thread.connection()),
        m_writtenWindow(std::move(writtenWindow)),
        m_isTerminal(std::move(isTerminal)),
        m_isChordHeld(std::move(isChordHeld)),
        m_clipboard(internAtom(m_connection, "CLIPBOARD")),
        m_wmState(internAtom(m_connection, "WM_STATE")),
        m_processId(internAtom(m_connection, "_NET_WM_PID")),
        m_patience(patience) {
    std::free(xcb_xkb_use_extension_reply(
        m_connection, xcb_xkb_use_extension(m_connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION), nullptr));
  }

  void start(std::uint16_t keyCode) {
    const auto key = evdevKey(keyCode);
    m_keyOfV = key ? static_cast<xcb_keycode_t>(*key + x11KeycodeOffset) : positionV;
    m_target.reset();
    m_start = std::chrono::steady_clock::now();
    attempt();
  }

 private:
  void attempt() {
    const auto waited = std::chrono::steady_clock::now() - m_start;
    const X11Modifiers modifiers(m_connection);
    const auto focused = focusedClient();
    if (!m_target || waited < m_patience.withPrograms) m_target = focused;
    const bool isModifierHeld = isAnyHeld(modifiers.chordKeys());
    const bool isHandOff = !isModifierHeld && !m_isChordHeld();
    const char* obstacle = !ownsClipboard()      ? "the clipboard isn't ours"
                           : !focused            ? "no other window has the keyboard"
                           : focused != m_target ? "the user went to another window"
                           : isModifierHeld      ? "a modifier key is held"
                           : !isHandOff          ? "a global shortcut is held"
                                                 : nullptr;
    const bool waitsForHands = focused && focused == m_target && !isHandOff;
    if (obstacle == nullptr) {
      press(modifiers, isTerminal(*focused));
    } else if (waited >= (waitsForHands ? m_patience.withHands : m_patience.withPrograms)) {
      foundation::printLine("Paste keys not pressed: ", obstacle);
    } else {
      m_next = m_thread.after(pollInterval, [this] { attempt(); });
    }
  }

  [[nodiscard]] bool ownsClipboard() const {
    const xcb_window_t window = m_writtenWindow();
    const auto cookie = xcb_get_selection_owner(m_connection, m_clipboard);
    const ReplyPointer<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection, cookie, nullptr));
    return window != XCB_NONE && reply && reply->owner == window;
  }

  // The window of another program that gets the keys, as its program made it. While a window manager runs it is one
  // that the manager manages: for a moment after ours is gone the focus rests on a frame or on nothing.
  [[nodiscard]] std::optional<xcb_window_t> focusedClient() const {
    const ReplyPointer<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    if (!focus || focus->focus == XCB_NONE) return std::nullopt;
    const bool isManaged = hasWindowManager(m_connection, m_thread.screen().root);
    if (focus->focus == XCB_INPUT_FOCUS_POINTER_ROOT || focus->focus == m_thread.screen().root) {
      return isManaged ? std::nullopt : std::optional(focus->focus);
    }
    const auto client = managedAncestor(focus->focus);
    if (!client && isManaged) return std::nullopt;
    const xcb_window_t target = client.value_or(focus->focus);
    return isOurs(target) ? std::nullopt : std::optional(target);
  }

  [[nodiscard]] std::optional<xcb_window_t> managedAncestor(xcb_window_t window) const {
    for (int depth = 0; depth < treeDepthLimit && window != XCB_NONE; ++depth) {
      if (!numbersProperty(m_connection, window, m_wmState, m_wmState, 1).empty()) return window;
      const ReplyPointer<xcb_query_tree_reply_t> tree(
          xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
      if (!tree) return std::nullopt;
      window = tree->parent;
    }
    return std::nullopt;
  }

  [[nodiscard]] bool isOurs(xcb_window_t window) const {
    const auto process = numbersProperty(m_connection, window, m_processId, XCB_ATOM_CARDINAL, 1);
    return !process.empty() && process.front() == static_cast<std::uint32_t>(getpid());
  }

  [[nodiscard]] bool isAnyHeld(const std::vector<xcb_keycode_t>& keys) const {
    const ReplyPointer<xcb_query_keymap_reply_t> keymap(
        xcb_query_keymap_reply(m_connection, xcb_query_keymap(m_connection), nullptr));
    return keymap && std::ranges::any_of(keys, [&keymap](xcb_keycode_t key) {
             return ((keymap->keys[key / 8] >> (key % 8)) & 1U) != 0;
           });
  }

  // WM_CLASS holds two names, each ended by a NUL.
  [[nodiscard]] bool isTerminal(xcb_window_t client) const {
    std::string_view names;
    const std::string property = bytesProperty(m_connection, client, XCB_ATOM_WM_CLASS);
    for (names = property; !names.empty();) {
      const std::string_view name = names.substr(0, names.find('\0'));
      names.remove_prefix(std::min(name.size() + 1, names.size()));
      const bool isKnown = std::ranges::find(terminalClasses, lowered(name)) != terminalClasses.end();
      if (isKnown || (m_isTerminal && m_isTerminal(std::string(name)))) return true;
    }
    return false;
  }

  void press(const X11Modifiers& modifiers, bool withShift) const {
    const ReplyPointer<xcb_xkb_get_state_reply_t> state(
        xcb_xkb_get_state_reply(m_connection, xcb_xkb_get_state(m_connection, XCB_XKB_ID_USE_CORE_KBD), nullptr));
    const X11LetterKey letter = keyOfV(m_connection, m_keyOfV, state ? state->group : std::uint8_t{0});
    std::vector<xcb_keycode_t> keys{modifiers.controlKey()};
    if (withShift) keys.push_back(modifiers.shiftKey());
    keys.push_back(letter.key);
    if (state) lock(0, letter.group);
    for (const xcb_keycode_t key : keys)
      send(XCB_KEY_PRESS, key);
    std::ranges::reverse(keys);
    for (const xcb_keycode_t key : keys)
      send(XCB_KEY_RELEASE, key);
    if (state) lock(state->lockedMods, static_cast<std::uint8_t>(state->lockedGroup));
    xcb_flush(m_connection);
  }

  void send(std::uint8_t type, xcb_keycode_t key) const {
    xcb_test_fake_input(m_connection, type, key, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
  }

  // With Caps Lock on, a program that compares letters takes the chord for another one.
  void lock(std::uint8_t modifiers, std::uint8_t group) const {
    xcb_xkb_latch_lock_state(m_connection, XCB_XKB_ID_USE_CORE_KBD, XCB_MOD_MASK_LOCK, modifiers & XCB_MOD_MASK_LOCK, 1,
                             group, 0, 0, 0);
  }

  X11Thread& m_thread;
  xcb_connection_t* m_connection;
  WrittenWindow m_writtenWindow;
  TerminalPredicate m_isTerminal;
  ChordPredicate m_isChordHeld;
  xcb_atom_t m_clipboard;
  xcb_atom_t m_wmState;
  xcb_atom_t m_processId;
  xcb_keycode_t m_keyOfV = positionV;
  Patience m_patience;
  std::chrono::steady_clock::time_point m_start;
  std::optional<xcb_window_t> m_target;  // that got the keyboard after ours was gone
  foundation::Subscription m_next;
};

std::unique_ptr<X11PasteKeys> X11PasteKeys::connect(WrittenWindow writtenWindow, TerminalPredicate isTerminal,
                                                    ChordPredicate isChordHeld, const Patience& patience,
                                                    const std::string& display) {
  auto thread = X11Thread::connect(display);
  if (!thread) return nullptr;
  const xcb_query_extension_reply_t* xtest = xcb_get_extension_data(thread->connection(), &xcb_test_id);
  if (xtest == nullptr || xtest->present == 0) return nullptr;
  auto injector = std::make_unique<Injector>(*thread, std::move(writtenWindow), std::move(isTerminal),
                                             std::move(isChordHeld), patience);
  return std::unique_ptr<X11PasteKeys>(new X11PasteKeys(std::move(thread), std::move(injector)));
}

X11PasteKeys::X11PasteKeys(std::unique_ptr<X11Thread> thread, std::unique_ptr<Injector> injector)
    : m_injector(std::move(injector)), m_thread(std::move(thread)) {
  m_thread->start([](const xcb_generic_event_t&) {},
                  [] { foundation::printLine("The connection for the paste keys was lost."); });
}

X11PasteKeys::~X11PasteKeys() = default;

void X11PasteKeys::postPasteKeyEvents(std::uint16_t keyCode) {
  m_thread->run([injector = m_injector.get(), keyCode] { injector->start(keyCode); });
}

}  // namespace platform
