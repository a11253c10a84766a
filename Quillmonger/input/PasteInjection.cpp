#include "Quillmonger/input/PasteInjection.h"

#include "Defaults/Defaults.h"
#include "Foundation/Output.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

PasteInjection::PasteInjection(PermissionsManaging& permissionsManager, PasteKeyPosting& pasteKeys,
                               foundation::RunLoop& runLoop, foundation::NotificationCenter& notificationCenter,
                               const defaults::Defaults& defaults)
    : m_permissionsManager(permissionsManager),
      m_pasteKeys(pasteKeys),
      m_runLoop(runLoop),
      m_notificationCenter(notificationCenter),
      m_defaults(defaults) {}

void PasteInjection::pasteIntoFrontmostApplication(const void* sender) {
  m_dismissal();
  if (!m_defaults[keys::pasteToApp]) {
    m_notificationCenter.post("PasteSucceeded", sender);
    return;
  }
  foundation::printLine("isAccessibilityAllowed = ", m_permissionsManager.isAccessibilityAllowed() ? "true" : "false");
  const bool isAllowed = m_permissionsManager.isAccessibilityAllowed();
  m_runLoop.post([this, isAllowed, isAlive = std::weak_ptr(m_isAlive)] {
    if (isAlive.expired()) return;
    if (isAllowed) {
      m_pasteKeys.postPasteKeyEvents();
    } else {
      m_permissionsManager.requestAccessibilityPermission();
    }
  });
  if (isAllowed) m_notificationCenter.post("PasteSucceeded", sender);
}

}  // namespace quillmonger
