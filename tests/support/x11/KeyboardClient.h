#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace testsupport {

/// Another program on the display, with one window, and the user's hands on the keyboard. Keys are evdev keys. Each
/// operation returns when the server has done it; the test's thread.
class KeyboardClient final {
 public:
  struct Key {
    std::uint32_t evdev;
    bool isDown;
    /// The modifiers before the event.
    std::uint16_t state;
    bool operator==(const Key&) const = default;
  };

  explicit KeyboardClient(const std::string& display);
  KeyboardClient(const KeyboardClient&) = delete;
  KeyboardClient& operator=(const KeyboardClient&) = delete;
  ~KeyboardClient();

  void press(std::uint32_t evdevKey);
  void release(std::uint32_t evdevKey);
  /// Presses and releases a lock key.
  void tap(std::uint32_t evdevKey);

  /// Switches to a group of the keymap, as a layout indicator does.
  void lockGroup(std::uint8_t group);

  /// Whether this program got the chord for itself.
  [[nodiscard]] bool grab(std::uint32_t evdevKey, std::uint16_t modifiers);

  /// Takes every key of the keyboard, as an open menu does.
  [[nodiscard]] bool grabKeyboard();

  [[nodiscard]] xcb_window_t window() const { return m_window; }
  void showWindow();
  void hideWindow();
  void focusWindow();
  void setWindowClass(const std::string& instanceName, const std::string& className);
  void setWindowProcess(std::uint32_t processId);
  void ownClipboard();
  void moveWindow(std::int16_t x, std::int16_t y);
  void setWindowAtom(const std::string& property, const std::string& value);
  /// Says of its window what only a window manager says: that it is the active one.
  void claimActive();
  /// Is the desktop's settings service from now on, with these settings.
  void serveSettings(const std::string& settings);
  [[nodiscard]] xcb_window_t focus() const;
  [[nodiscard]] bool isUnderWindowManager() const;
  [[nodiscard]] std::vector<std::uint32_t> windowAtoms(const std::string& property) const;
  /// Absent when the property is missing.
  [[nodiscard]] std::optional<std::uint32_t> windowNumber(const std::string& property) const;
  [[nodiscard]] std::uint32_t atom(const std::string& name) const;

  /// Hears the bell from now on, as a desktop that has a sound for it.
  void listenToTheBell();
  /// Whether it has sounded since.
  [[nodiscard]] bool heardTheBell();

  /// What the key types, in the order of the core mapping.
  [[nodiscard]] std::vector<xcb_keysym_t> symbols(std::uint32_t evdevKey) const;

  /// The keys that the window got since it was made.
  [[nodiscard]] const std::vector<Key>& receivedKeys();

 private:
  void send(std::uint8_t type, std::uint32_t evdevKey);
  void settle() const;

  xcb_connection_t* m_connection;
  xcb_window_t m_root;
  xcb_window_t m_window;
  std::vector<Key> m_received;
};

}  // namespace testsupport
