#include "Platform/x11/X11Thread.h"

#include <poll.h>
#include <signal.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>

#include "Platform/x11/X11Reply.h"

namespace platform {

namespace {

// A flood of events must not keep tasks and timers from running.
constexpr int eventsPerTurn = 256;

// A write to a connection that `stop` has shut down must be an error, not the end of the program.
void blockPipeSignal() {
  sigset_t signals{};
  sigemptyset(&signals);
  sigaddset(&signals, SIGPIPE);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

const xcb_screen_t* screenAt(xcb_connection_t* connection, int index) {
  xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
  for (; screens.rem > 0 && index > 0; --index)
    xcb_screen_next(&screens);
  return screens.rem > 0 ? screens.data : nullptr;
}

}  // namespace

std::unique_ptr<X11Thread> X11Thread::connect(const std::string& display) {
  int screenIndex = 0;
  xcb_connection_t* connection = xcb_connect(display.empty() ? nullptr : display.c_str(), &screenIndex);
  const xcb_screen_t* screen = xcb_connection_has_error(connection) != 0 ? nullptr : screenAt(connection, screenIndex);
  if (screen == nullptr) {
    xcb_disconnect(connection);
    return nullptr;
  }
  return std::unique_ptr<X11Thread>(new X11Thread(connection, screen));
}

X11Thread::X11Thread(xcb_connection_t* connection, const xcb_screen_t* screen)
    : m_connection(connection), m_screen(screen), m_wakeUp(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

X11Thread::~X11Thread() {
  stop();
  xcb_disconnect(m_connection);
  close(m_wakeUp);
}

void X11Thread::start(EventHandler onEvent, Task onLost) {
  m_onEvent = std::move(onEvent);
  m_onLost = std::move(onLost);
  m_thread = std::thread([this] { loop(); });
}

void X11Thread::stop() {
  if (!m_thread.joinable()) return;
  m_isEnding = true;
  wake();
  // A server that another program has grabbed answers nothing; the thread must not wait for it now.
  shutdown(xcb_get_file_descriptor(m_connection), SHUT_RDWR);
  m_thread.join();
}

void X11Thread::run(Task task) {
  {
    const std::lock_guard lock(m_mutex);
    m_tasks.push_back(std::move(task));
  }
  wake();
}

foundation::Subscription X11Thread::after(std::chrono::milliseconds delay, Task task) {
  const auto key = std::pair(Clock::now() + delay, m_nextTimer++);
  m_timers->emplace(key, std::move(task));
  return foundation::Subscription([timers = std::weak_ptr(m_timers), key] {
    if (const auto present = timers.lock()) present->erase(key);
  });
}

void X11Thread::wake() const {
  const std::uint64_t one = 1;
  // It fails only when the counter is full, and then the thread is being woken already.
  [[maybe_unused]] const ssize_t written = write(m_wakeUp, &one, sizeof one);
}

void X11Thread::loop() {
  blockPipeSignal();
  while (!m_isEnding) {
    bool didWork = handleEvents();
    didWork = fireTimers() || didWork;
    if (m_isEnding) return;
    if (xcb_connection_has_error(m_connection) != 0) {
      m_onLost();
      return;
    }
    if (!didWork) sleep();
  }
}

// What was asked for before an event came is done before the event is seen.
bool X11Thread::handleEvents() {
  bool didWork = false;
  for (int handled = 0; handled < eventsPerTurn; ++handled) {
    const X11Reply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection));
    didWork = runTasks() || didWork;
    if (!event) return didWork;
    m_onEvent(*event);
    didWork = true;
  }
  return true;
}

bool X11Thread::runTasks() {
  std::vector<Task> tasks;
  {
    const std::lock_guard lock(m_mutex);
    tasks.swap(m_tasks);
  }
  for (const Task& task : tasks)
    task();
  return !tasks.empty();
}

bool X11Thread::fireTimers() {
  const Clock::time_point now = Clock::now();
  bool didFire = false;
  while (!m_timers->empty() && m_timers->begin()->first.first <= now) {
    const Task task = std::move(m_timers->begin()->second);
    m_timers->erase(m_timers->begin());
    task();
    didFire = true;
  }
  return didFire;
}

void X11Thread::sleep() {
  xcb_flush(m_connection);
  // Flushing may have read events into xcb's queue, of which the socket tells nothing any more.
  if (const X11Reply<xcb_generic_event_t> event(xcb_poll_for_queued_event(m_connection)); event) {
    runTasks();
    m_onEvent(*event);
    return;
  }
  int timeout = -1;
  if (!m_timers->empty()) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(m_timers->begin()->first.first - Clock::now());
    timeout = static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
  }
  pollfd sources[] = {{xcb_get_file_descriptor(m_connection), POLLIN, 0}, {m_wakeUp, POLLIN, 0}};
  poll(sources, 2, timeout);
  std::uint64_t count = 0;
  // Empty when the socket or a timer ended the wait.
  [[maybe_unused]] const ssize_t taken = read(m_wakeUp, &count, sizeof count);
}

}  // namespace platform
