#include "Quillmonger/settings/panes/HistoryClearing.h"

#include <utility>

namespace quillmonger {

namespace {

constexpr std::size_t clearButton = 0;

}  // namespace

HistoryClearing::HistoryClearing(Collaborators collaborators) : m_with(std::move(collaborators)) {}

void HistoryClearing::ask() {
  using Role = foundation::AlertSheet::Button::Role;
  const auto& text = m_with.texts;
  m_with.alert.begin({text("settings_clipboard_clear_history_alert_title"),
                      text("settings_clipboard_clear_history_alert_message"),
                      {{text("clear_string"), Role::destructive}, {text("cancel_string"), Role::cancel}}},
                     [this, isAlive = std::weak_ptr(m_isAlive)](std::size_t button) {
                       if (!isAlive.expired() && button == clearButton) clear();
                     });
}

void HistoryClearing::clear() {
  m_with.deleteAllItems();
  m_with.notificationCenter.post("HistoryCleared", m_with.root);
}

}  // namespace quillmonger
