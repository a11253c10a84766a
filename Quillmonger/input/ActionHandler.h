#pragma once

#include "Quillmonger/input/Action.h"

namespace quillmonger {

/// Whoever acts on key actions. Main thread.
class ActionHandler {
 public:
  ActionHandler() = default;
  ActionHandler(const ActionHandler&) = delete;
  ActionHandler& operator=(const ActionHandler&) = delete;
  virtual ~ActionHandler() = default;

  /// Whether the event was consumed; one that was not goes on to the windows.
  virtual bool handleAction(Action action, const KeyEvent& event) = 0;
};

}  // namespace quillmonger
