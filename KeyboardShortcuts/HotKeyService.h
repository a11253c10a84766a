#pragma once

#include <cstdint>
#include <functional>

namespace keyboardshortcuts {

/// The desktop's service of key chords that reach the program wherever the user is. Main thread.
class HotKeyService {
 public:
  enum class Kind { pressed, released };
  using Handler = std::function<void(std::uint32_t identifier, Kind kind)>;

  HotKeyService() = default;
  HotKeyService(const HotKeyService&) = delete;
  HotKeyService& operator=(const HotKeyService&) = delete;
  virtual ~HotKeyService() = default;

  /// Who is told of each press and release. A key held down is one press, whatever the keyboard repeats.
  virtual void setHandler(Handler handler) = 0;
  /// `keyCode`: virtual key code of the ANSI layout, by position. `modifiers`: service bits (command 0x100,
  /// shift 0x200, option 0x800, control 0x1000); command is the Super key. Lock keys don't matter. False when another
  /// program holds the chord, or the service can't register it.
  virtual bool registerHotKey(std::uint32_t identifier, std::uint32_t keyCode, std::uint32_t modifiers) = 0;
  virtual void unregisterHotKey(std::uint32_t identifier) = 0;
};

}  // namespace keyboardshortcuts
