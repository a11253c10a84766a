#include "KeyboardShortcuts/ShortcutText.h"

#include <utility>

#include "KeyboardShortcuts/ShortcutDescription.h"

namespace keyboardshortcuts {

ShortcutText::ShortcutText(Name name, const KeyboardShortcuts& shortcuts, const sauce::InputSourceService& inputSources,
                           foundation::NotificationCenter& notificationCenter)
    : m_name(std::move(name)),
      m_shortcuts(shortcuts),
      m_inputSources(inputSources),
      m_observer(notificationCenter.observe("KeyboardShortcuts_shortcutByNameDidChange",
                                            [this](const auto& notification) {
                                              const auto changed = notification.userInfo.find("name");
                                              if (changed != notification.userInfo.end() &&
                                                  changed->second == m_name.rawValue)
                                                update();
                                            })),
      m_layoutObserver(
          notificationCenter.observe("SauceSelectedKeyboardKeyCodesChanged", [this](const auto&) { update(); })) {
  update();
}

void ShortcutText::setName(Name name) {
  m_name = std::move(name);
  update();
}

void ShortcutText::update() {
  const auto shortcut = m_shortcuts.getShortcut(m_name);
  m_value.set(shortcut ? description(*shortcut, m_inputSources) : std::string());
}

}  // namespace keyboardshortcuts
