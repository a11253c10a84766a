#pragma once

#include <functional>

#include "Foundation/RunLoop.h"
#include "Foundation/Subscription.h"
#include "Quillmonger/shell/windows/MotionPreference.h"

namespace quillmonger {

/// A movement of a window, one at a time, fast at first and calm at its end. It ends without a further call when this
/// object goes. Main thread.
class Animation final {
 public:
  using Step = std::function<void(double progress)>;

  /// Both outlive this object.
  Animation(foundation::RunLoop& runLoop, const MotionPreference& motion) : m_runLoop(runLoop), m_motion(motion) {}

  /// Calls `step` with how much of the way is done, never less than before and 1 at last, and then `completion`, when
  /// `duration` is over; both before it returns where the user wants no motion. Not before an earlier one has ended.
  void run(foundation::Seconds duration, const Step& step, const std::function<void()>& completion);

 private:
  foundation::RunLoop& m_runLoop;
  const MotionPreference& m_motion;
  double m_done = 0;
  foundation::Subscription m_steps;
  foundation::Subscription m_end;
};

}  // namespace quillmonger
