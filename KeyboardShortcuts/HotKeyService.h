#pragma once

#include <cstdint>
#include <functional>

namespace keyboardshortcuts {

enum class EventType { keyDown, keyUp };

/// What became of an event that was told: `eventNotHandledErr` lets it go on to whoever else may want it.
enum class EventStatus : std::int32_t { noErr = 0, eventNotHandledErr = -9874 };

/// Whose hot key it is (`signature`), and which of theirs.
struct HotKeyIdentifier {
  std::uint32_t signature = 0;
  std::uint32_t id = 0;

  auto operator<=>(const HotKeyIdentifier&) const = default;
};

/// The desktop's service of key chords that reach the program wherever the user is. Main thread.
///
/// A key code is a virtual key code of the ANSI layout, by position. Modifiers are service bits (command 0x100,
/// shift 0x200, option 0x800, control 0x1000); command is the Super key. Lock keys don't matter.
class HotKeyService {
 public:
  using HotKeyHandler = std::function<EventStatus(const HotKeyIdentifier&, EventType)>;
  using RawKeyHandler = std::function<EventStatus(std::uint32_t keyCode, std::uint32_t modifiers, EventType)>;

  HotKeyService() = default;
  HotKeyService(const HotKeyService&) = delete;
  HotKeyService& operator=(const HotKeyService&) = delete;
  virtual ~HotKeyService() = default;

  /// Who is told of each press and release of a registered chord; nobody, when empty. A key held down is one press,
  /// whatever the keyboard repeats.
  virtual void setHotKeyHandler(HotKeyHandler handler) = 0;
  /// Who is told of each key with its modifiers, whichever window or menu has the keyboard; empty to watch no more. A
  /// key held down is one press.
  virtual void setRawKeyHandler(RawKeyHandler handler) = 0;

  /// False when another program holds the chord, or the service can't register it.
  virtual bool registerHotKey(const HotKeyIdentifier& identifier, std::uint32_t keyCode, std::uint32_t modifiers) = 0;
  virtual void unregisterHotKey(const HotKeyIdentifier& identifier) = 0;
  /// Whether another program holds the chord at this moment. False for one that is registered here, and for one that no
  /// program can hold.
  [[nodiscard]] virtual bool isHeldByAnother(std::uint32_t keyCode, std::uint32_t modifiers) = 0;
};

}  // namespace keyboardshortcuts
