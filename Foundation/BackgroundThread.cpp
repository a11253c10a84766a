#include "Foundation/BackgroundThread.h"

#include <sched.h>

namespace foundation {

void becomeBackgroundThread() {
  const sched_param noPriority{};
  [[maybe_unused]] static thread_local const int outcome = sched_setscheduler(0, SCHED_BATCH, &noPriority);
}

}  // namespace foundation
