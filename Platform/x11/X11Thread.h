#pragma once

#include <xcb/xcb.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "Foundation/Subscription.h"

namespace platform {

/// One connection to the X server and the one thread that uses it. The thread sleeps until the server, a task or a
/// timer has something for it; nothing on it may wait for another program, only for the server.
///
/// Life: make it, prepare the server's side through `connection()`, `start()` once, `stop()`. What the handlers use
/// must be there until `stop` has returned. The destructor stops too, and closes the connection.
class X11Thread final {
 public:
  using Task = std::function<void()>;
  using EventHandler = std::function<void(const xcb_generic_event_t&)>;

  /// Connects to `display`, or to the one named in the environment when that is empty. Null when there is none.
  [[nodiscard]] static std::unique_ptr<X11Thread> connect(const std::string& display = {});

  X11Thread(const X11Thread&) = delete;
  X11Thread& operator=(const X11Thread&) = delete;
  ~X11Thread();

  /// For the thread alone once it is started. Replies may be waited for there, and the thread flushes before it
  /// sleeps. Errors of unchecked requests come as events with response type 0.
  [[nodiscard]] xcb_connection_t* connection() const { return m_connection; }
  [[nodiscard]] const xcb_screen_t& screen() const { return *m_screen; }

  /// Starts the thread. On it, `onEvent` gets each event, and `onLost` is called, last of all, when the server has
  /// closed the connection.
  void start(EventHandler onEvent, Task onLost);

  /// Ends the thread and waits for its present turn. Tasks and timers that are left are never run, and the connection
  /// takes no more requests. Not on the thread.
  void stop();

  /// Runs `task` on the thread, after the tasks before it. From any thread, also before `start`.
  void run(Task task);
  /// Runs `task` once, `delay` from now, unless the hold is gone by then. Only on the thread, as is ending the hold.
  foundation::Subscription after(std::chrono::milliseconds delay, Task task);

 private:
  using Clock = std::chrono::steady_clock;
  /// In the order in which they fall due; the number keeps timers of one moment apart.
  using Timers = std::map<std::pair<Clock::time_point, std::uint64_t>, Task>;

  X11Thread(xcb_connection_t* connection, const xcb_screen_t* screen);

  void loop();
  void wake() const;
  [[nodiscard]] bool handleEvents();
  bool runTasks();
  [[nodiscard]] bool fireTimers();
  void sleep();

  xcb_connection_t* m_connection;
  const xcb_screen_t* m_screen;
  int m_wakeUp;  // an eventfd
  EventHandler m_onEvent;
  Task m_onLost;
  std::mutex m_mutex;  // guards m_tasks
  std::vector<Task> m_tasks;
  std::shared_ptr<Timers> m_timers = std::make_shared<Timers>();
  std::uint64_t m_nextTimer = 0;
  std::atomic<bool> m_isEnding = false;
  std::thread m_thread;
};

}  // namespace platform
