#pragma once

#include "Foundation/Published.h"
#include "Foundation/RunLoop.h"
#include "Foundation/Subscription.h"
#include "Quillmonger/capture/PermissionsManaging.h"

namespace quillmonger {

/// Whether Quillmonger may press keys, tested four times a second while the guide's last screen is up. Main thread.
class AccessibilityViewModel final {
 public:
  /// Both outlive this object.
  AccessibilityViewModel(PermissionsManaging& permissionsManager, foundation::RunLoop& runLoop);

  /// The screen came up: what was known is forgotten, and the first test comes a quarter of a second later.
  void appear();
  void disappear();

  /// Told only when it changes.
  [[nodiscard]] foundation::Published<bool>& permissionsGranted() { return m_permissionsGranted; }

  /// Leads the user to granting it.
  void requestPermission() { m_permissionsManager.requestAccessibilityPermission(); }

 private:
  void setGranted(bool isGranted);

  PermissionsManaging& m_permissionsManager;
  foundation::RunLoop& m_runLoop;
  foundation::Published<bool> m_permissionsGranted{false};
  foundation::Subscription m_timer;
};

}  // namespace quillmonger
