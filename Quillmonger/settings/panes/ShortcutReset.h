#pragma once

#include <memory>
#include <vector>

#include "Foundation/AlertSheet.h"
#include "Foundation/TextLookup.h"
#include "KeyboardShortcuts/KeyboardShortcuts.h"

namespace quillmonger {

/// Puts chords back on their defaults, after a question. Main thread.
class ShortcutReset final {
 public:
  /// All that is named here outlives this object.
  ShortcutReset(foundation::AlertSheet& alert, foundation::TextLookup texts,
                keyboardshortcuts::KeyboardShortcuts& shortcuts, std::vector<keyboardshortcuts::Name> names);

  /// Asks, and returns.
  void ask();

 private:
  foundation::AlertSheet& m_alert;
  foundation::TextLookup m_texts;
  keyboardshortcuts::KeyboardShortcuts& m_shortcuts;
  std::vector<keyboardshortcuts::Name> m_names;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
