#pragma once

#include <optional>

#include "Sauce/KeyboardLayout.h"

namespace sauce {

/// Which position produces a key under the user's layout, and the reverse. There is one in the program. Main thread.
///
/// An absent answer is ordinary: a layout for another script has no key that types "v". What to do then is the
/// caller's to decide.
class Sauce final {
 public:
  /// Both outlive this object.
  Sauce(InputSourceService& service, foundation::NotificationCenter& notificationCenter);

  [[nodiscard]] const KeyboardLayout& layout() const { return m_layout; }
  [[nodiscard]] const ModifierTransformer& modifierTransformar() const { return m_modifierTransformar; }

  /// Under the current layout.
  [[nodiscard]] std::optional<KeyCode> keyCode(Key key) const;
  [[nodiscard]] std::optional<KeyCode> keyCode(const InputSource& source, Key key) const;
  /// The table of the current layout; null when it has none. Good until the layouts change.
  [[nodiscard]] const KeyCodes* currentKeyCodes() const;
  [[nodiscard]] const KeyCodes* keyCodes(const InputSource& source) const;
  /// The key at a position under the current layout.
  [[nodiscard]] std::optional<Key> key(KeyCode keyCode) const;

 private:
  KeyboardLayout m_layout;
  ModifierTransformer m_modifierTransformar;
};

}  // namespace sauce
