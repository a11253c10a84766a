#pragma once

#include <functional>
#include <memory>

#include "Foundation/NotificationCenter.h"
#include "Foundation/RunLoop.h"
#include "Quillmonger/capture/PasteStep.h"
#include "Quillmonger/capture/PermissionsManaging.h"
#include "Quillmonger/input/PasteKeyPosting.h"

namespace defaults {
class Defaults;
}
namespace sauce {
class Sauce;
}

namespace quillmonger {

/// The end of a paste: the program gets out of the way, and the paste keys go to whoever comes to the front.
/// Main thread.
class PasteInjection final : public PasteStep {
 public:
  /// All outlive this object.
  PasteInjection(PermissionsManaging& permissionsManager, const sauce::Sauce& sauce, PasteKeyPosting& pasteKeys,
                 foundation::RunLoop& runLoop, foundation::NotificationCenter& notificationCenter,
                 const defaults::Defaults& defaults);

  /// The one way to take the history off the screen and give the front back. Set before the first paste.
  void setDismissal(std::function<void()> dismissal) { m_dismissal = std::move(dismissal); }

  void pasteIntoFrontmostApplication(const void* sender) override;

 private:
  void postPasteKeyEvents();

  PermissionsManaging& m_permissionsManager;
  const sauce::Sauce& m_sauce;
  PasteKeyPosting& m_pasteKeys;
  foundation::RunLoop& m_runLoop;
  foundation::NotificationCenter& m_notificationCenter;
  const defaults::Defaults& m_defaults;
  std::function<void()> m_dismissal;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
