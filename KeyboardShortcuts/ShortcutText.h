#pragma once

#include <string>

#include "Foundation/NotificationCenter.h"
#include "Foundation/Published.h"
#include "Foundation/Subscription.h"
#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "Sauce/InputSourceService.h"

namespace keyboardshortcuts {

/// The chord of a name as the user reads it, at any time: it follows the stored chord and the keyboard layout. Main
/// thread.
class ShortcutText final {
 public:
  /// All outlive this object.
  ShortcutText(Name name, const KeyboardShortcuts& shortcuts, const sauce::InputSourceService& inputSources,
               foundation::NotificationCenter& notificationCenter);
  ShortcutText(const ShortcutText&) = delete;
  ShortcutText& operator=(const ShortcutText&) = delete;

  [[nodiscard]] const Name& name() const { return m_name; }
  void setName(Name name);

  /// Empty without a chord.
  [[nodiscard]] foundation::Published<std::string>& value() { return m_value; }

 private:
  void update();

  Name m_name;
  const KeyboardShortcuts& m_shortcuts;
  const sauce::InputSourceService& m_inputSources;
  foundation::Published<std::string> m_value;
  foundation::Subscription m_observer;
  foundation::Subscription m_layoutObserver;
};

}  // namespace keyboardshortcuts
