#pragma once

#include <map>
#include <unordered_map>
#include <vector>

#include "Foundation/NotificationCenter.h"
#include "Foundation/Subscription.h"
#include "Sauce/InputSource.h"
#include "Sauce/InputSourceService.h"
#include "Sauce/Key.h"
#include "Sauce/ModifierTransformer.h"

namespace sauce {

/// Where each key is under one layout. The lowest position counts for a character that several keys type.
using KeyCodes = std::map<Key, KeyCode>;

/// Follows the user's layouts, and keeps a table of each enabled one. Main thread. A desktop without a current layout
/// or without one for Latin letters stops the process.
///
/// Posts, with no object:
/// - "SauceSelectedKeyboardInputSourceChanged": another layout was selected.
/// - "SauceSelectedKeyboardKeyCodesChanged", after it: and its table differs from the one before.
/// - "SauceEnabledKeyboardInputSourcesChanged": the enabled sources changed, or what their keys type.
class KeyboardLayout final {
 public:
  /// Both outlive this object.
  KeyboardLayout(InputSourceService& service, foundation::NotificationCenter& notificationCenter);

  [[nodiscard]] const InputSource& currentKeyboardLayoutInputSource() const {
    return m_currentKeyboardLayoutInputSource;
  }
  [[nodiscard]] const InputSource& currentASCIICapableInputSource() const { return m_currentASCIICapableInputSource; }
  /// The enabled sources, as of the last change of them.
  [[nodiscard]] const std::vector<InputSource>& inputSources() const { return m_inputSources; }
  /// Without an entry for a source that doesn't say what its keys type.
  [[nodiscard]] const std::unordered_map<InputSource, KeyCodes>& mappedKeyCodes() const { return m_mappedKeyCodes; }
  [[nodiscard]] const ModifierTransformer& modifierTransformer() const { return m_modifierTransformer; }

 private:
  void mapInputSources();
  void mapKeyCodes(const InputSource& source);
  void selectedInputSourceChanged();
  void enabledInputSourcesChanged();

  InputSourceService& m_service;
  foundation::NotificationCenter& m_notificationCenter;
  InputSource m_currentKeyboardLayoutInputSource;
  InputSource m_currentASCIICapableInputSource;
  std::unordered_map<InputSource, KeyCodes> m_mappedKeyCodes;
  std::vector<InputSource> m_inputSources;
  ModifierTransformer m_modifierTransformer;
  foundation::Subscription m_selected;
  foundation::Subscription m_enabled;
};

}  // namespace sauce
