#include "Quillmonger/guide/AccessibilityViewModel.h"

namespace quillmonger {

namespace {

constexpr foundation::Seconds testInterval(0.25);

}  // namespace

AccessibilityViewModel::AccessibilityViewModel(PermissionsManaging& permissionsManager, foundation::RunLoop& runLoop)
    : m_permissionsManager(permissionsManager), m_runLoop(runLoop) {}

void AccessibilityViewModel::appear() {
  setGranted(false);
  m_timer = m_runLoop.every(testInterval, [this] { setGranted(m_permissionsManager.isAccessibilityAllowed()); });
}

void AccessibilityViewModel::disappear() { m_timer.cancel(); }

void AccessibilityViewModel::setGranted(bool isGranted) {
  if (isGranted != m_permissionsGranted.value()) m_permissionsGranted.set(isGranted);
}

}  // namespace quillmonger
