#include "Quillmonger/preview/LatestWork.h"

#include <utility>

namespace quillmonger {

void LatestWork::start(Work work) {
  cancel();
  m_next = std::move(work);
  if (!m_isUnderWay) runNext();
}

void LatestWork::cancel() {
  m_next = nullptr;
  m_isWanted = false;
}

void LatestWork::runNext() {
  m_isUnderWay = true;
  m_isWanted = true;
  m_queue.async([this, isAlive = std::weak_ptr(m_isAlive), &runLoop = m_runLoop,
                 work = std::exchange(m_next, nullptr)]() mutable {
    Finish finish = work();
    // What the work and its outcome hold is let go of on the main thread, like all else.
    runLoop.post([this, isAlive, finish = std::move(finish), done = std::exchange(work, nullptr)] {
      if (!isAlive.expired()) end(finish);
    });
  });
}

void LatestWork::end(const Finish& finish) {
  m_isUnderWay = false;
  if (m_next) {
    runNext();
  } else if (std::exchange(m_isWanted, false)) {
    finish();
  }
}

}  // namespace quillmonger
