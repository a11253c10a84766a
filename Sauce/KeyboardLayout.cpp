#include "Sauce/KeyboardLayout.h"

#include <optional>
#include <string>
#include <utility>

#include "Foundation/Fatal.h"
#include "Sauce/SpecialKey.h"

namespace sauce {

namespace {

constexpr KeyCode lastKeyCode = 127;

InputSource currentKeyboardLayout(const InputSourceService& service) {
  auto source = service.currentKeyboardLayoutInputSource();
  if (!source) foundation::stopProcess("There is no current keyboard layout");
  return *std::move(source);
}

InputSource currentASCIICapable(const InputSourceService& service) {
  auto source = service.currentASCIICapableInputSource();
  if (!source) foundation::stopProcess("There is no current ASCII-capable input source");
  return *std::move(source);
}

}  // namespace

KeyboardLayout::KeyboardLayout(InputSourceService& service, foundation::NotificationCenter& notificationCenter)
    : m_service(service),
      m_notificationCenter(notificationCenter),
      m_currentKeyboardLayoutInputSource(currentKeyboardLayout(service)),
      m_currentASCIICapableInputSource(currentASCIICapable(service)) {
  mapInputSources();
  m_selected = m_service.observeSelectedInputSource([this] { selectedInputSourceChanged(); });
  m_enabled = m_service.observeEnabledInputSources([this] { enabledInputSourcesChanged(); });
}

void KeyboardLayout::mapInputSources() {
  m_inputSources = m_service.enabledInputSources();
  for (const InputSource& source : m_inputSources)
    mapKeyCodes(source);
}

void KeyboardLayout::mapKeyCodes(const InputSource& source) {
  if (!m_service.hasLayoutData(source)) return;
  KeyCodes keyCodes;
  for (KeyCode keyCode = 0; keyCode <= lastKeyCode; ++keyCode) {
    auto character = specialKeyName(keyCode);
    if (!character) character = m_service.translate(source, keyCode, 0);
    if (!character) continue;
    if (const auto key = keyForCharacter(*character, keyCode)) keyCodes.try_emplace(*key, keyCode);
  }
  m_mappedKeyCodes.insert_or_assign(source, std::move(keyCodes));
}

void KeyboardLayout::selectedInputSourceChanged() {
  const InputSource previous = std::exchange(m_currentKeyboardLayoutInputSource, currentKeyboardLayout(m_service));
  m_currentASCIICapableInputSource = currentASCIICapable(m_service);
  const InputSource& selected = m_currentKeyboardLayoutInputSource;
  if (selected == previous) return;
  if (!m_mappedKeyCodes.contains(selected)) mapKeyCodes(selected);
  const auto before = m_mappedKeyCodes.find(previous);
  const auto now = m_mappedKeyCodes.find(selected);
  const bool hasBoth = before != m_mappedKeyCodes.end() && now != m_mappedKeyCodes.end();
  // Decided before anyone is told, and may change the layout again.
  const bool didMoveKeys = hasBoth && before->second != now->second;
  m_notificationCenter.post("SauceSelectedKeyboardInputSourceChanged");
  if (didMoveKeys) m_notificationCenter.post("SauceSelectedKeyboardKeyCodesChanged");
}

void KeyboardLayout::enabledInputSourcesChanged() {
  m_mappedKeyCodes.clear();
  mapInputSources();
  m_notificationCenter.post("SauceEnabledKeyboardInputSourcesChanged");
}

}  // namespace sauce
