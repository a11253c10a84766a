#pragma once

#include "Foundation/Subscription.h"
#include "Quillmonger/input/ActionHandler.h"
#include "Quillmonger/input/LocalEventMonitoring.h"

namespace quillmonger {

/// Receives the key events of the program's windows from its construction on, as actions. Main thread.
class BaseEventManager : public ActionHandler {
 public:
  explicit BaseEventManager(LocalEventMonitoring& monitoring);

  /// Stops the process: each subclass has its own.
  bool handleAction(Action action, const KeyEvent& event) override;

 private:
  foundation::Subscription m_eventMonitor;
};

}  // namespace quillmonger
