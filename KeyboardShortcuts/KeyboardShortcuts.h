#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Foundation/Stream.h"
#include "Foundation/Subscription.h"
#include "KeyboardShortcuts/HotKeyService.h"
#include "KeyboardShortcuts/Name.h"

namespace defaults {
class UserDefaults;
}

namespace keyboardshortcuts {

/// The user's global chords: each stored under a name, with handlers that run wherever the user is. Main thread.
class KeyboardShortcuts final {
 public:
  using Handler = std::function<void()>;

  /// Both outlive this object.
  KeyboardShortcuts(HotKeyService& service, defaults::UserDefaults& store);
  KeyboardShortcuts(const KeyboardShortcuts&) = delete;
  KeyboardShortcuts& operator=(const KeyboardShortcuts&) = delete;
  ~KeyboardShortcuts();

  /// Stores the name's default chord if nothing is stored for the name. A chord that the user cleared stays cleared.
  void declare(const Name& name);

  /// The stored chord. Absent when there is none, it was cleared, or it can't be read.
  [[nodiscard]] std::optional<Shortcut> getShortcut(const Name& name) const;
  /// Stores the chord, or clears it. The name's handlers hear the new chord from now on.
  void setShortcut(const std::optional<Shortcut>& shortcut, const Name& name);
  /// Puts the names back on their defaults.
  void reset(const std::vector<Name>& names);

  /// Adds a handler of the chord's press or release, until the hold is gone.
  foundation::Subscription onKeyDown(const Name& name, Handler handler);
  foundation::Subscription onKeyUp(const Name& name, Handler handler);

  /// Takes the names' chords from the service, or gives them back to it.
  void disable(const std::vector<Name>& names);
  void enable(const std::vector<Name>& names);

  /// Takes all chords from the service while false.
  [[nodiscard]] bool isEnabled() const { return m_isEnabled; }
  void setEnabled(bool isEnabled);
  /// While true, chords stay with the service and run no handler.
  [[nodiscard]] bool isPaused() const { return m_isPaused; }
  void setPaused(bool isPaused) { m_isPaused = isPaused; }

  /// Tells the raw value of each name whose stored chord was set, cleared or reset.
  [[nodiscard]] foundation::Stream<std::string>& shortcutByNameDidChange() { return m_shortcutByNameDidChange; }

 private:
  foundation::Stream<std::string> m_shortcutByNameDidChange;
  bool m_isEnabled = true;
  bool m_isPaused = false;
};

}  // namespace keyboardshortcuts
