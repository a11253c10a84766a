#pragma once

#include <deque>
#include <memory>
#include <mutex>

#include "Foundation/RunLoop.h"

namespace platform {

/// The main queue on Qt's event loop. Nothing wakes the program up but what was posted and timers that are due;
/// repeating timers may fall a twentieth of their interval early or late, so that several wake it up together.
/// Made on the main thread after the application object, and gone before it.
class QtRunLoop final : public foundation::RunLoop {
 public:
  QtRunLoop();
  QtRunLoop(const QtRunLoop&) = delete;
  QtRunLoop& operator=(const QtRunLoop&) = delete;
  ~QtRunLoop() override;

  void post(Task task) override;
  foundation::Subscription after(foundation::Seconds delay, Task task) override;
  foundation::Subscription every(foundation::Seconds interval, Task task) override;
  [[nodiscard]] foundation::Date date() const override;

 private:
  class Turn;
  void runPosted();

  std::mutex m_mutex;
  std::deque<Task> m_posted;
  bool m_isTurnDue = false;
  std::unique_ptr<Turn> m_turn;
};

}  // namespace platform
