#include "Quillmonger/settings/panes/ShortcutReset.h"

#include <utility>

namespace quillmonger {

namespace {

constexpr std::size_t restoreButton = 0;

}  // namespace

ShortcutReset::ShortcutReset(foundation::AlertSheet& alert, foundation::TextLookup texts,
                             keyboardshortcuts::KeyboardShortcuts& shortcuts,
                             std::vector<keyboardshortcuts::Name> names)
    : m_alert(alert), m_texts(std::move(texts)), m_shortcuts(shortcuts), m_names(std::move(names)) {}

void ShortcutReset::ask() {
  using Role = foundation::AlertSheet::Button::Role;
  m_alert.begin({m_texts("restore_defaults_alert_title"),
                 m_texts("restore_defaults_alert_msg"),
                 {{m_texts("restore_string"), Role::standard}, {m_texts("cancel_string"), Role::cancel}}},
                [this, isAlive = std::weak_ptr(m_isAlive)](std::size_t button) {
                  if (!isAlive.expired() && button == restoreButton) m_shortcuts.reset(m_names);
                });
}

}  // namespace quillmonger
