#include "Quillmonger/shell/PermissionsManager.h"

#include <utility>

namespace quillmonger {

PermissionsManager::PermissionsManager(PostEventAccess& access, Alert& alert, foundation::TextLookup texts,
                                       UrlOpener openUrl, foundation::RunLoop& runLoop)
    : m_access(access), m_alert(alert), m_texts(std::move(texts)), m_openUrl(std::move(openUrl)), m_runLoop(runLoop) {}

void PermissionsManager::requestAccessibilityPermission() {
  if (std::exchange(m_isFirstPermissionRequest, false)) {
    m_access.request();
    return;
  }
  m_runLoop.post([weak = std::weak_ptr(m_self)] {
    if (const auto self = weak.lock()) (*self)->showAccessibilityAlert();
  });
}

void PermissionsManager::showAccessibilityAlert() {
  const int answer = m_alert.runModal({m_texts("dialog_message"),
                                       m_texts("dialog_description"),
                                       {m_texts("dialog_deny_button"), m_texts("dialog_open_button")}});
  if (answer != Alert::secondButton) return;
  if (const auto url = foundation::Url::parse(m_access.settingsUrl())) m_openUrl(*url);
}

}  // namespace quillmonger
