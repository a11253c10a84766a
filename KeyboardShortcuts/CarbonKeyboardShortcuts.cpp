#include "KeyboardShortcuts/CarbonKeyboardShortcuts.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace keyboardshortcuts {

namespace {

bool fits32Bits(std::int64_t number) { return number >= 0 && number <= std::numeric_limits<std::uint32_t>::max(); }

// A copy is called: the action may end the hot key.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
EventStatus run(HotKey hotKey, EventType type) {
  const auto& action = type == EventType::keyDown ? hotKey.onKeyDown : hotKey.onKeyUp;
  action(hotKey.shortcut);
  return EventStatus::noErr;
}

}  // namespace

CarbonKeyboardShortcuts::CarbonKeyboardShortcuts(HotKeyService& service) : m_service(service) { updateEventHandler(); }

CarbonKeyboardShortcuts::~CarbonKeyboardShortcuts() {
  m_service.setHotKeyHandler({});
  m_service.setRawKeyHandler({});
  takeAllFromService();
}

bool CarbonKeyboardShortcuts::registerShortcut(const Shortcut& shortcut, HotKey::Action onKeyDown,
                                               HotKey::Action onKeyUp) {
  HotKey hotKey{shortcut, ++m_hotKeyId, std::nullopt, std::move(onKeyDown), std::move(onKeyUp)};
  if (!giveToService(hotKey)) return false;
  m_hotKeys.emplace(m_hotKeyId, std::move(hotKey));
  return true;
}

void CarbonKeyboardShortcuts::unregisterShortcut(const Shortcut& shortcut) {
  const auto found =
      std::ranges::find_if(m_hotKeys, [&](const auto& entry) { return entry.second.shortcut == shortcut; });
  if (found == m_hotKeys.end()) return;
  takeFromService(found->second);
  m_hotKeys.erase(found);
}

bool CarbonKeyboardShortcuts::isRegistered(const Shortcut& shortcut) const {
  return std::ranges::any_of(m_hotKeys, [&](const auto& entry) { return entry.second.shortcut == shortcut; });
}

void CarbonKeyboardShortcuts::renew() {
  takeAllFromService();
  updateEventHandler();
}

void CarbonKeyboardShortcuts::setEnabled(bool isEnabled) {
  if (std::exchange(m_isEnabled, isEnabled) != isEnabled) updateEventHandler();
}

void CarbonKeyboardShortcuts::setMenuOpen(bool isMenuOpen) {
  if (std::exchange(m_isMenuOpen, isMenuOpen) != isMenuOpen) updateEventHandler();
}

bool CarbonKeyboardShortcuts::isHeldByAnother(const Shortcut& shortcut) const {
  if (!fits32Bits(shortcut.carbonKeyCode) || !fits32Bits(shortcut.carbonModifiers)) return false;
  return m_service.isHeldByAnother(static_cast<std::uint32_t>(shortcut.carbonKeyCode),
                                   static_cast<std::uint32_t>(shortcut.carbonModifiers));
}

void CarbonKeyboardShortcuts::updateEventHandler() {
  if (m_isEnabled && !m_isMenuOpen) {
    giveAllToService();
    m_service.setRawKeyHandler({});
    m_service.setHotKeyHandler(
        [this](const HotKeyIdentifier& identifier, EventType type) { return handleHotKey(identifier, type); });
    return;
  }
  takeAllFromService();
  m_service.setHotKeyHandler({});
  if (!m_isEnabled) {
    m_service.setRawKeyHandler({});
  } else {
    m_service.setRawKeyHandler([this](std::uint32_t keyCode, std::uint32_t modifiers, EventType type) {
      return handleRawKey(keyCode, modifiers, type);
    });
  }
}

bool CarbonKeyboardShortcuts::giveToService(HotKey& hotKey) {
  const Shortcut& shortcut = hotKey.shortcut;
  if (!fits32Bits(shortcut.carbonKeyCode) || !fits32Bits(shortcut.carbonModifiers)) return false;
  const HotKeyIdentifier identifier{signature, static_cast<std::uint32_t>(hotKey.carbonHotKeyId)};
  const bool isRegistered = m_service.registerHotKey(identifier, static_cast<std::uint32_t>(shortcut.carbonKeyCode),
                                                     static_cast<std::uint32_t>(shortcut.carbonModifiers));
  if (isRegistered) hotKey.carbonHotKey = identifier;
  return isRegistered;
}

void CarbonKeyboardShortcuts::giveAllToService() {
  for (auto entry = m_hotKeys.begin(); entry != m_hotKeys.end();) {
    const bool isThere = entry->second.carbonHotKey || giveToService(entry->second);
    entry = isThere ? std::next(entry) : m_hotKeys.erase(entry);
  }
}

void CarbonKeyboardShortcuts::takeFromService(HotKey& hotKey) {
  if (hotKey.carbonHotKey) m_service.unregisterHotKey(*hotKey.carbonHotKey);
  hotKey.carbonHotKey.reset();
}

void CarbonKeyboardShortcuts::takeAllFromService() {
  for (auto& [id, hotKey] : m_hotKeys)
    takeFromService(hotKey);
}

EventStatus CarbonKeyboardShortcuts::handleHotKey(const HotKeyIdentifier& identifier, EventType type) {
  if (identifier.signature != signature) return EventStatus::eventNotHandledErr;
  const auto hotKey =
      std::ranges::find_if(m_hotKeys, [&](const auto& entry) { return entry.second.carbonHotKey == identifier; });
  if (hotKey == m_hotKeys.end()) return EventStatus::eventNotHandledErr;
  return run(hotKey->second, type);
}

EventStatus CarbonKeyboardShortcuts::handleRawKey(std::uint32_t keyCode, std::uint32_t modifiers, EventType type) {
  const Shortcut pressed{keyCode, modifiers};
  const auto hotKey =
      std::ranges::find_if(m_hotKeys, [&](const auto& entry) { return entry.second.shortcut == pressed; });
  if (hotKey == m_hotKeys.end()) return EventStatus::eventNotHandledErr;
  return run(hotKey->second, type);
}

}  // namespace keyboardshortcuts
