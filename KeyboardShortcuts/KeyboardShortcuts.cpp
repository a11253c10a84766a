#include "KeyboardShortcuts/KeyboardShortcuts.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "Defaults/UserDefaults.h"

namespace keyboardshortcuts {

namespace {

std::string storageKey(const Name& name) { return "KeyboardShortcuts_" + name.rawValue; }

bool fits32Bits(std::int64_t number) { return number >= 0 && number <= std::numeric_limits<std::uint32_t>::max(); }

bool contains(const std::vector<Shortcut>& shortcuts, const Shortcut& shortcut) {
  return std::find(shortcuts.begin(), shortcuts.end(), shortcut) != shortcuts.end();
}

}  // namespace

KeyboardShortcuts::KeyboardShortcuts(HotKeyService& service, defaults::UserDefaults& store,
                                     foundation::NotificationCenter& notificationCenter)
    : m_service(service), m_store(store), m_notificationCenter(notificationCenter) {
  m_service.setHandler([this](std::uint32_t identifier, Kind kind) { dispatch(identifier, kind); });
}

KeyboardShortcuts::~KeyboardShortcuts() {
  for (const auto& [identifier, shortcut] : m_hotKeys)
    m_service.unregisterHotKey(identifier);
  m_service.setHandler(nullptr);
}

void KeyboardShortcuts::declare(const Name& name) {
  if (!name.defaultShortcut || m_store.objectForKey(storageKey(name))) return;
  m_store.setObject(storageKey(name), name.defaultShortcut->toJson());
}

std::optional<Shortcut> KeyboardShortcuts::getShortcut(const Name& name) const {
  const auto object = m_store.objectForKey(storageKey(name));
  if (!object) return std::nullopt;
  const auto* text = object->as<std::string>();
  return text == nullptr ? std::nullopt : Shortcut::fromJson(*text);
}

void KeyboardShortcuts::setShortcut(const std::optional<Shortcut>& shortcut, const Name& name) {
  if (shortcut) {
    m_store.setObject(storageKey(name), shortcut->toJson());
  } else if (!getShortcut(name)) {
    return;
  } else if (name.defaultShortcut) {
    m_store.setObject(storageKey(name), false);
  } else {
    m_store.removeObject(storageKey(name));
  }
  changed(name);
}

void KeyboardShortcuts::reset(const std::vector<Name>& names) {
  for (const auto& name : names) {
    m_store.removeObject(storageKey(name));
    declare(name);
    changed(name);
  }
}

foundation::Subscription KeyboardShortcuts::onKeyDown(const Name& name, Handler handler) {
  return addHandler(Kind::pressed, name, std::move(handler));
}

foundation::Subscription KeyboardShortcuts::onKeyUp(const Name& name, Handler handler) {
  return addHandler(Kind::released, name, std::move(handler));
}

foundation::Subscription KeyboardShortcuts::addHandler(Kind kind, const Name& name, Handler handler) {
  auto& bound = m_bound.try_emplace(name.rawValue).first->second;
  bound.name = name;
  auto subscription =
      bound.handlers[kind].subscribe([handler = std::move(handler)](const Shortcut& /*fired*/) { handler(); });
  updateHotKeys();
  return subscription;
}

void KeyboardShortcuts::disable(const std::vector<Name>& names) {
  for (const auto& name : names)
    m_disabled.insert(name.rawValue);
  updateHotKeys();
}

void KeyboardShortcuts::enable(const std::vector<Name>& names) {
  for (const auto& name : names)
    m_disabled.erase(name.rawValue);
  updateHotKeys();
}

void KeyboardShortcuts::setEnabled(bool isEnabled) {
  m_isEnabled = isEnabled;
  updateHotKeys();
}

void KeyboardShortcuts::changed(const Name& name) {
  updateHotKeys();
  m_notificationCenter.post("KeyboardShortcuts_shortcutByNameDidChange", nullptr, {{"name", name.rawValue}});
}

void KeyboardShortcuts::updateHotKeys() {
  const auto wanted = wantedShortcuts();
  std::erase_if(m_hotKeys, [&](const auto& hotKey) {
    if (contains(wanted, hotKey.second)) return false;
    m_service.unregisterHotKey(hotKey.first);
    return true;
  });
  std::vector<Shortcut> registered;
  for (const auto& [identifier, shortcut] : m_hotKeys)
    registered.push_back(shortcut);
  for (const auto& shortcut : wanted) {
    if (!contains(registered, shortcut)) registerHotKey(shortcut);
  }
}

std::vector<Shortcut> KeyboardShortcuts::wantedShortcuts() const {
  std::vector<Shortcut> wanted;
  if (!m_isEnabled) return wanted;
  for (const auto& [rawValue, bound] : m_bound) {
    const auto shortcut = m_disabled.contains(rawValue) ? std::nullopt : getShortcut(bound.name);
    if (shortcut && !contains(wanted, *shortcut)) wanted.push_back(*shortcut);
  }
  return wanted;
}

void KeyboardShortcuts::registerHotKey(const Shortcut& shortcut) {
  if (!fits32Bits(shortcut.carbonKeyCode) || !fits32Bits(shortcut.carbonModifiers)) return;
  const std::uint32_t identifier = ++m_lastHotKeyId;
  const auto keyCode = static_cast<std::uint32_t>(shortcut.carbonKeyCode);
  const auto modifiers = static_cast<std::uint32_t>(shortcut.carbonModifiers);
  if (m_service.registerHotKey(identifier, keyCode, modifiers)) m_hotKeys.emplace(identifier, shortcut);
}

void KeyboardShortcuts::dispatch(std::uint32_t identifier, Kind kind) {
  const auto hotKey = m_hotKeys.find(identifier);
  if (m_isPaused || hotKey == m_hotKeys.end()) return;
  const Shortcut fired = hotKey->second;  // a copy: a handler may change the chords
  for (auto& [rawValue, bound] : m_bound) {
    const auto handlers = bound.handlers.find(kind);
    if (handlers == bound.handlers.end() || m_disabled.contains(rawValue)) continue;
    if (getShortcut(bound.name) == fired) handlers->second.send(fired);
  }
}

}  // namespace keyboardshortcuts
