#pragma once

#include <xcb/xcb.h>

#include <functional>
#include <vector>

namespace platform {

class X11Atoms;
class X11Thread;

/// The part of the desktop's clipboard manager, by which a program that quits asks to have its content kept. On the
/// thread of the connection.
class ManagerSelection final {
 public:
  /// `onSave`: a program has asked, and waits until `answer`.
  ManagerSelection(X11Thread& thread, X11Atoms& atoms, xcb_window_t window, std::function<void()> onSave);

  /// Takes the part, unless another program has it.
  void take(xcb_timestamp_t time);
  void handleRequest(const xcb_selection_request_event_t& event);

  enum class Saved { no, yes };
  /// Tells those who wait what became of their content.
  void answer(Saved saved);

 private:
  void announce(xcb_timestamp_t time);

  X11Thread& m_thread;
  X11Atoms& m_atoms;
  const xcb_window_t m_window;
  std::function<void()> m_onSave;
  xcb_timestamp_t m_time = XCB_CURRENT_TIME;
  std::vector<xcb_selection_request_event_t> m_waiting;
};

}  // namespace platform
