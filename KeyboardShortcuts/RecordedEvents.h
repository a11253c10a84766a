#pragma once

#include <functional>

#include "Foundation/Subscription.h"
#include "KeyboardShortcuts/Event.h"

namespace keyboardshortcuts {

/// What the user does in the window with the keyboard, told before the window and everyone else hears of it. Main
/// thread.
class RecordedEvents {
 public:
  enum class Disposition : bool { pass, swallow };
  using Handler = std::function<Disposition(const Event&)>;

  RecordedEvents() = default;
  RecordedEvents(const RecordedEvents&) = delete;
  RecordedEvents& operator=(const RecordedEvents&) = delete;
  virtual ~RecordedEvents() = default;

  /// Tells each press of a key that is no modifier, also of a chord that another program or the desktop has for itself,
  /// and each release of a mouse button, until the hold is gone. The handler may end the hold. At most one at a time.
  virtual foundation::Subscription watch(Handler handler) = 0;
};

}  // namespace keyboardshortcuts
