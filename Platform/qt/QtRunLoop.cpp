#include "Platform/qt/QtRunLoop.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QPointer>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

namespace platform {

namespace {

enum class Repeats : bool { no, yes };

// No wait of the toolkit is longer than 24 days: a longer one ends then.
int millisecondsOf(foundation::Seconds interval) {
  constexpr double longest = std::numeric_limits<int>::max();
  return static_cast<int>(std::ceil(std::clamp(interval.count() * 1000, 0.0, longest)));
}

class Timer final : public QObject {
 public:
  Timer(foundation::Seconds interval, Repeats repeats, foundation::RunLoop::Task task)
      : m_task(std::move(task)), m_repeats(repeats) {
    m_id = startTimer(millisecondsOf(interval), repeats == Repeats::yes ? Qt::CoarseTimer : Qt::PreciseTimer);
  }

  void end() {
    stop();
    m_task = nullptr;
    deleteLater();
  }

 private:
  void timerEvent(QTimerEvent* /*event*/) override {
    const auto task = m_task;  // a copy: the task may end its own timer
    if (m_repeats == Repeats::no) stop();
    if (task) task();
  }

  void stop() {
    if (const int running = std::exchange(m_id, 0)) killTimer(running);
  }

  foundation::RunLoop::Task m_task;
  Repeats m_repeats;
  int m_id = 0;
};

foundation::Subscription start(foundation::Seconds interval, Repeats repeats, foundation::RunLoop::Task task) {
  // The application is the parent, so that a hold which outlives it finds the timer gone.
  QPointer<Timer> timer = new Timer(interval, repeats, std::move(task));
  timer->setParent(QCoreApplication::instance());
  return foundation::Subscription([timer] {
    if (timer) timer->end();
  });
}

}  // namespace

class QtRunLoop::Turn final : public QObject {
 public:
  explicit Turn(QtRunLoop& loop) : m_loop(loop) {}

 private:
  bool event(QEvent* event) override {
    if (event->type() != QEvent::User) return QObject::event(event);
    m_loop.runPosted();
    return true;
  }

  QtRunLoop& m_loop;
};

QtRunLoop::QtRunLoop() : m_turn(std::make_unique<Turn>(*this)) {}
QtRunLoop::~QtRunLoop() = default;

void QtRunLoop::post(Task task) {
  {
    const std::lock_guard lock(m_mutex);
    m_posted.push_back(std::move(task));
    if (std::exchange(m_isTurnDue, true)) return;
  }
  QCoreApplication::postEvent(m_turn.get(), new QEvent(QEvent::User));
}

// Only what was posted before the turn began: a task that posts itself anew must not keep out the user's events.
void QtRunLoop::runPosted() {
  std::unique_lock lock(m_mutex);
  m_isTurnDue = false;
  for (std::size_t left = m_posted.size(); left > 0 && !m_posted.empty(); --left) {
    const Task task = std::move(m_posted.front());
    m_posted.pop_front();
    lock.unlock();
    task();
    lock.lock();
  }
}

foundation::Subscription QtRunLoop::after(foundation::Seconds delay, Task task) {
  return start(delay, Repeats::no, std::move(task));
}

foundation::Subscription QtRunLoop::every(foundation::Seconds interval, Task task) {
  return start(interval, Repeats::yes, std::move(task));
}

foundation::Date QtRunLoop::date() const { return std::chrono::system_clock::now(); }

}  // namespace platform
