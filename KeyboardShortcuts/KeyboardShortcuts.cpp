#include "KeyboardShortcuts/KeyboardShortcuts.h"

#include <utility>

#include "Defaults/UserDefaults.h"

namespace keyboardshortcuts {

namespace {

std::string storageKey(const Name& name) { return "KeyboardShortcuts_" + name.rawValue; }

}  // namespace

KeyboardShortcuts::KeyboardShortcuts(HotKeyService& service, const SymbolicHotKeys& symbolicHotKeys,
                                     defaults::UserDefaults& store, foundation::NotificationCenter& notificationCenter)
    : m_symbolicHotKeys(symbolicHotKeys), m_store(store), m_notificationCenter(notificationCenter), m_hotKeys(service) {
  const auto observe = [&](const char* name, const std::function<void()>& action) {
    m_observations.push_back(notificationCenter.observe(name, [action](const auto& /*told*/) { action(); }));
  };
  observe(menuDidBeginTracking, [this] { m_hotKeys.setMenuOpen(true); });
  observe(menuDidEndTracking, [this] { m_hotKeys.setMenuOpen(false); });
  observe("SauceSelectedKeyboardKeyCodesChanged", [this] { renewHotKeys(); });
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

bool KeyboardShortcuts::isTakenBySystem(const Shortcut& shortcut) const {
  return keyboardshortcuts::isTakenBySystem(shortcut, m_symbolicHotKeys) || m_hotKeys.isHeldByAnother(shortcut);
}

foundation::Subscription KeyboardShortcuts::onKeyDown(const Name& name, Handler handler) {
  return addHandler(EventType::keyDown, name, std::move(handler));
}

foundation::Subscription KeyboardShortcuts::onKeyUp(const Name& name, Handler handler) {
  return addHandler(EventType::keyUp, name, std::move(handler));
}

foundation::Subscription KeyboardShortcuts::addHandler(EventType type, const Name& name, Handler handler) {
  auto& bound = m_bound.try_emplace(name.rawValue).first->second;
  bound.name = name;
  auto subscription =
      bound.handlers[type].subscribe([handler = std::move(handler)](const Shortcut& /*fired*/) { handler(); });
  updateHotKey(bound);
  return subscription;
}

void KeyboardShortcuts::disable(const std::vector<Name>& names) {
  for (const auto& name : names) {
    m_disabled.insert(name.rawValue);
    updateHotKey(name);
  }
}

void KeyboardShortcuts::enable(const std::vector<Name>& names) {
  for (const auto& name : names) {
    m_disabled.erase(name.rawValue);
    updateHotKey(name);
  }
}

void KeyboardShortcuts::setEnabled(bool isEnabled) { m_hotKeys.setEnabled(isEnabled); }

void KeyboardShortcuts::changed(const Name& name) {
  updateHotKey(name);
  m_notificationCenter.post("KeyboardShortcuts_shortcutByNameDidChange", nullptr, {{"name", name.rawValue}});
}

void KeyboardShortcuts::updateHotKey(const Name& name) {
  if (const auto bound = m_bound.find(name.rawValue); bound != m_bound.end()) updateHotKey(bound->second);
}

void KeyboardShortcuts::updateHotKey(Bound& bound) {
  const auto wanted = m_disabled.contains(bound.name.rawValue) ? std::nullopt : getShortcut(bound.name);
  if (wanted == bound.registered) return;
  endHotKey(bound);
  if (!wanted) return;
  const auto runAt = [this](EventType type) { return [this, type](const Shortcut& fired) { run(type, fired); }; };
  if (m_hotKeys.registerShortcut(*wanted, runAt(EventType::keyDown), runAt(EventType::keyUp))) {
    bound.registered = wanted;
  }
}

void KeyboardShortcuts::endHotKey(Bound& bound) {
  if (bound.registered) m_hotKeys.unregisterShortcut(*bound.registered);
  bound.registered.reset();
}

void KeyboardShortcuts::renewHotKeys() {
  m_hotKeys.renew();
  for (auto& [rawValue, bound] : m_bound) {
    if (bound.registered && !m_hotKeys.isRegistered(*bound.registered)) bound.registered.reset();
    updateHotKey(bound);
  }
}

void KeyboardShortcuts::run(EventType type, const Shortcut& fired) {
  if (m_isPaused) return;
  for (auto& [rawValue, bound] : m_bound) {
    const auto handlers = bound.handlers.find(type);
    if (handlers == bound.handlers.end() || m_disabled.contains(rawValue)) continue;
    if (getShortcut(bound.name) == fired) handlers->second.send(fired);
  }
}

}  // namespace keyboardshortcuts
