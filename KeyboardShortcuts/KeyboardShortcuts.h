#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "Foundation/NotificationCenter.h"
#include "Foundation/Stream.h"
#include "Foundation/Subscription.h"
#include "KeyboardShortcuts/CarbonKeyboardShortcuts.h"
#include "KeyboardShortcuts/Name.h"
#include "KeyboardShortcuts/SymbolicHotKeys.h"

namespace defaults {
class UserDefaults;
}

namespace keyboardshortcuts {

/// The user's global chords: each is stored under a name, and the handlers of its name run wherever the user is. Each
/// name is declared before it is used. A chord that the service refuses stays dead, without a word. Main thread.
///
/// Posts "KeyboardShortcuts_shortcutByNameDidChange" when a stored chord was set, cleared or reset, with the raw value
/// of its name under "name". Whoever opens a menu that takes the keyboard posts `menuDidBeginTracking`, and
/// `menuDidEndTracking` when it closes: the chords work meanwhile. "SauceSelectedKeyboardKeyCodesChanged" makes the
/// chords known to the service anew.
class KeyboardShortcuts final {
 public:
  using Handler = std::function<void()>;

  static constexpr auto menuDidBeginTracking = "NSMenuDidBeginTrackingNotification";
  static constexpr auto menuDidEndTracking = "NSMenuDidEndTrackingNotification";

  /// All outlive this object.
  KeyboardShortcuts(HotKeyService& service, const SymbolicHotKeys& symbolicHotKeys, defaults::UserDefaults& store,
                    foundation::NotificationCenter& notificationCenter);
  KeyboardShortcuts(const KeyboardShortcuts&) = delete;
  KeyboardShortcuts& operator=(const KeyboardShortcuts&) = delete;

  /// Stores the name's default chord if nothing is stored for the name. A chord that the user cleared stays cleared.
  void declare(const Name& name);

  /// The stored chord. Absent when there is none, it was cleared, or it can't be read.
  [[nodiscard]] std::optional<Shortcut> getShortcut(const Name& name) const;
  /// Stores the chord, or clears it. The name's handlers hear the new chord from now on.
  void setShortcut(const std::optional<Shortcut>& shortcut, const Name& name);
  /// Puts the names back on their defaults.
  void reset(const std::vector<Name>& names);

  /// Whether the desktop itself reacts to the chord, or another program holds it.
  [[nodiscard]] bool isTakenBySystem(const Shortcut& shortcut) const;

  /// Adds a handler of the press or release of the name's chord, until the hold is gone.
  foundation::Subscription onKeyDown(const Name& name, Handler handler);
  foundation::Subscription onKeyUp(const Name& name, Handler handler);

  /// Takes the names' chords from the service, or gives them to it.
  void disable(const std::vector<Name>& names);
  void enable(const std::vector<Name>& names);

  /// While false, no chord works.
  [[nodiscard]] bool isEnabled() const { return m_hotKeys.isEnabled(); }
  void setEnabled(bool isEnabled);
  /// While true, the chords stay with the service and run no handler.
  [[nodiscard]] bool isPaused() const { return m_isPaused; }
  void setPaused(bool isPaused) { m_isPaused = isPaused; }

 private:
  struct Bound {
    Name name;
    std::map<EventType, foundation::Stream<Shortcut>> handlers;
    std::optional<Shortcut> registered;
  };

  foundation::Subscription addHandler(EventType type, const Name& name, Handler handler);
  void changed(const Name& name);
  void updateHotKey(const Name& name);
  void updateHotKey(Bound& bound);
  void endHotKey(Bound& bound);
  void renewHotKeys();
  void run(EventType type, const Shortcut& fired);

  const SymbolicHotKeys& m_symbolicHotKeys;
  defaults::UserDefaults& m_store;
  foundation::NotificationCenter& m_notificationCenter;
  CarbonKeyboardShortcuts m_hotKeys;
  std::map<std::string, Bound> m_bound;
  std::set<std::string> m_disabled;
  bool m_isPaused = false;
  std::vector<foundation::Subscription> m_observations;
};

}  // namespace keyboardshortcuts
