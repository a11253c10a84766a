#include "Sauce/Sauce.h"

#include <algorithm>

namespace sauce {

Sauce::Sauce(InputSourceService& service, foundation::NotificationCenter& notificationCenter)
    : m_layout(service, notificationCenter) {}

std::optional<KeyCode> Sauce::keyCode(Key key) const {
  return keyCode(m_layout.currentKeyboardLayoutInputSource(), key);
}

std::optional<KeyCode> Sauce::keyCode(const InputSource& source, Key key) const {
  const KeyCodes* codes = keyCodes(source);
  if (codes == nullptr) return std::nullopt;
  const auto found = codes->find(key);
  return found == codes->end() ? std::nullopt : std::optional(found->second);
}

const KeyCodes* Sauce::currentKeyCodes() const { return keyCodes(m_layout.currentKeyboardLayoutInputSource()); }

const KeyCodes* Sauce::keyCodes(const InputSource& source) const {
  const auto found = m_layout.mappedKeyCodes().find(source);
  return found == m_layout.mappedKeyCodes().end() ? nullptr : &found->second;
}

std::optional<Key> Sauce::key(KeyCode keyCode) const {
  const KeyCodes* codes = currentKeyCodes();
  if (codes == nullptr) return std::nullopt;
  const auto found = std::ranges::find_if(*codes, [keyCode](const auto& entry) { return entry.second == keyCode; });
  return found == codes->end() ? std::nullopt : std::optional(found->first);
}

}  // namespace sauce
