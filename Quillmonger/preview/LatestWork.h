#pragma once

#include <functional>
#include <memory>

#include "Foundation/BackgroundQueue.h"
#include "Foundation/RunLoop.h"

namespace quillmonger {

/// Work beside the main thread of which only the latest counts: there is never more than one under way and one waiting,
/// however fast new work comes. Main thread.
class LatestWork final {
 public:
  /// What is done on the main thread with the outcome.
  using Finish = std::function<void()>;
  /// Runs on another thread.
  using Work = std::function<Finish()>;

  /// Both outlive this object and its work.
  LatestWork(foundation::BackgroundQueue& queue, foundation::RunLoop& runLoop) : m_queue(queue), m_runLoop(runLoop) {}

  /// Drops what came before: unstarted work isn't done, and the outcome of what is under way isn't used.
  void start(Work work);
  void cancel();

 private:
  void runNext();
  void end(const Finish& finish);

  foundation::BackgroundQueue& m_queue;
  foundation::RunLoop& m_runLoop;
  Work m_next;
  bool m_isUnderWay = false;
  bool m_isWanted = false;  // the outcome of what is under way
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
