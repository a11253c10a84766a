#include "Quillmonger/input/BaseEventManager.h"

#include "Foundation/Fatal.h"

namespace quillmonger {

using Disposition = LocalEventMonitoring::Disposition;

BaseEventManager::BaseEventManager(LocalEventMonitoring& monitoring)
    : m_eventMonitor(monitoring.addLocalMonitor([this](const KeyEvent& event) {
        return handleAction(actionForEvent(event), event) ? Disposition::swallow : Disposition::pass;
      })) {}

bool BaseEventManager::handleAction(Action /*action*/, const KeyEvent& /*event*/) {
  foundation::stopProcess("Subclass must implement its own action handler");
}

}  // namespace quillmonger
