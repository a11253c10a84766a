#include "Quillmonger/input/PasteInjection.h"

#include <string_view>

#include "Defaults/Defaults.h"
#include "Foundation/Output.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "Sauce/Sauce.h"

namespace quillmonger {

namespace {

constexpr sauce::KeyCode ansiV = 9;
// At the end of a layout's name: its keys move to their ANSI places while Command is held.
constexpr std::string_view commandSign = "\u2318";

}  // namespace

PasteInjection::PasteInjection(PermissionsManaging& permissionsManager, const sauce::Sauce& sauce,
                               PasteKeyPosting& pasteKeys, foundation::RunLoop& runLoop,
                               foundation::NotificationCenter& notificationCenter, const defaults::Defaults& defaults)
    : m_permissionsManager(permissionsManager),
      m_sauce(sauce),
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
      postPasteKeyEvents();
    } else {
      m_permissionsManager.requestAccessibilityPermission();
    }
  });
  if (isAllowed) m_notificationCenter.post("PasteSucceeded", sender);
}

void PasteInjection::postPasteKeyEvents() {
  const auto keyCode = m_sauce.keyCode(sauce::Key::v);
  const auto& name = m_sauce.layout().currentKeyboardLayoutInputSource().localizedName;
  const bool isAnsi = !keyCode || (name && name->ends_with(commandSign));
  m_pasteKeys.postPasteKeyEvents(isAnsi ? ansiV : *keyCode);
}

}  // namespace quillmonger
