#pragma once

#include <memory>

#include "Foundation/RunLoop.h"
#include "Foundation/TextLookup.h"
#include "Quillmonger/capture/PermissionsManaging.h"
#include "Quillmonger/input/PostEventAccess.h"
#include "Quillmonger/shell/Alert.h"
#include "Quillmonger/shell/DialogManager.h"

namespace quillmonger {

/// Gets the permission to press keys: by the desktop's own prompt the first time in a run, by an alert that leads to
/// the desktop's settings from then on. There is one in the program. Main thread.
class PermissionsManager final : public PermissionsManaging {
 public:
  /// All outlive this object.
  PermissionsManager(PostEventAccess& access, Alert& alert, foundation::TextLookup texts, UrlOpener openUrl,
                     foundation::RunLoop& runLoop);

  [[nodiscard]] bool isAccessibilityAllowed() const override { return m_access.isAllowed(); }
  /// The alert comes in a turn of its own: the caller has just taken the program's windows off the screen.
  void requestAccessibilityPermission() override;

 private:
  void showAccessibilityAlert();

  PostEventAccess& m_access;
  Alert& m_alert;
  foundation::TextLookup m_texts;
  UrlOpener m_openUrl;
  foundation::RunLoop& m_runLoop;
  bool m_isFirstPermissionRequest = true;
  std::shared_ptr<PermissionsManager*> m_self = std::make_shared<PermissionsManager*>(this);
};

}  // namespace quillmonger
