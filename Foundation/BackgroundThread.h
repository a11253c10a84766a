#pragma once

namespace foundation {

/// Makes the calling thread one that waits for its turn: it gets no less of the processor's time, but when it wakes up
/// it doesn't take the processor from the main thread, in the middle of the turn that gave it work. Where the system
/// refuses that, all stays as it was.
void becomeBackgroundThread();

}  // namespace foundation
