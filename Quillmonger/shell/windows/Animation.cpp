#include "Quillmonger/shell/windows/Animation.h"

#include <algorithm>
#include <cmath>

namespace quillmonger {

namespace {

constexpr foundation::Seconds stepInterval{1.0 / 60};

double easedOut(double share) { return 1 - std::pow(1 - share, 3); }

}  // namespace

void Animation::run(foundation::Seconds duration, const Step& step, const std::function<void()>& completion) {
  if (m_motion.reducesMotion()) {
    step(1);
    completion();
    return;
  }
  m_done = 0;
  // The calendar's clock can be set while it runs: it moves the steps, and the end is a timer's.
  m_steps = m_runLoop.every(stepInterval, [this, duration, step, start = m_runLoop.date()] {
    const double share = foundation::Seconds(m_runLoop.date() - start) / duration;
    m_done = std::max(m_done, easedOut(std::clamp(share, 0.0, 1.0)));
    step(m_done);
  });
  m_end = m_runLoop.after(duration, [this, step, completion] {
    m_steps.cancel();
    step(1);
    completion();
  });
}

}  // namespace quillmonger
