#pragma once

#include <cstdint>
#include <map>

#include "KeyboardShortcuts/HotKey.h"
#include "KeyboardShortcuts/HotKeyService.h"

namespace keyboardshortcuts {

/// The live hot keys. While a menu is open the service tells no hot keys, so that every key is watched instead.
/// A chord that the service refuses stays dead, without a word. Main thread.
class CarbonKeyboardShortcuts final {
 public:
  static constexpr std::uint32_t signature = 0x4B424853;

  /// `service` outlives this object.
  explicit CarbonKeyboardShortcuts(HotKeyService& service);
  CarbonKeyboardShortcuts(const CarbonKeyboardShortcuts&) = delete;
  CarbonKeyboardShortcuts& operator=(const CarbonKeyboardShortcuts&) = delete;
  ~CarbonKeyboardShortcuts();

  /// False when the service refuses the chord.
  bool registerShortcut(const Shortcut& shortcut, HotKey::Action onKeyDown, HotKey::Action onKeyUp);
  /// Ends the first hot key of the chord.
  void unregisterShortcut(const Shortcut& shortcut);
  [[nodiscard]] bool isRegistered(const Shortcut& shortcut) const;
  /// Gives every hot key to the service anew, under its identifier: a press that is under way still finds it. One that
  /// the service refuses now is dropped.
  void renew();

  /// While false, no hot key works.
  [[nodiscard]] bool isEnabled() const { return m_isEnabled; }
  void setEnabled(bool isEnabled);
  [[nodiscard]] bool isMenuOpen() const { return m_isMenuOpen; }
  void setMenuOpen(bool isMenuOpen);

  /// Whether another program holds the chord.
  [[nodiscard]] bool isHeldByAnother(const Shortcut& shortcut) const;

 private:
  void updateEventHandler();
  [[nodiscard]] bool giveToService(HotKey& hotKey);
  void giveAllToService();
  void takeFromService(HotKey& hotKey);
  void takeAllFromService();
  EventStatus handleHotKey(const HotKeyIdentifier& identifier, EventType type);
  EventStatus handleRawKey(std::uint32_t keyCode, std::uint32_t modifiers, EventType type);

  HotKeyService& m_service;
  std::map<std::int32_t, HotKey> m_hotKeys;
  std::int32_t m_hotKeyId = 0;
  bool m_isEnabled = true;
  bool m_isMenuOpen = false;
};

}  // namespace keyboardshortcuts
