#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/x11/X11Atoms.h"
#include "Platform/x11/X11Thread.h"

namespace testsupport {

/// Another program on the display that owns the clipboard, and behaves as the test tells it, however badly. Its
/// handlers run on a thread of its own; the other operations are the test's, and return when the server has done them.
class HostileOwner final {
 public:
  struct Request {
    xcb_window_t requestor;
    xcb_atom_t selection;
    xcb_atom_t target;
    xcb_atom_t property;
    xcb_timestamp_t time;
  };
  using Handler = std::function<void(HostileOwner& owner, const Request& request)>;

  explicit HostileOwner(const std::string& display);
  HostileOwner(const HostileOwner&) = delete;
  HostileOwner& operator=(const HostileOwner&) = delete;
  ~HostileOwner();

  /// What it does when it is asked for `target`. It lists every target that has a handler, and "TARGETS" by itself;
  /// it refuses the others.
  void answer(const std::string& target, Handler handler);
  void own();
  /// Empties the clipboard on purpose.
  void disown();
  /// The connection breaks, as when a program is killed.
  void quit();
  /// The targets that it was asked for, in order.
  [[nodiscard]] std::vector<std::string> requestedTargets() const;

  /// Owns the clipboard `count` times, each with the text of its number, `pace` or a little more apart.
  /// `waitsForReader`: and until each text has been asked for, so that a busy machine doesn't change what the test is
  /// about.
  enum class Waiting { no, untilRead };
  void ownInTurn(int count, std::chrono::milliseconds pace, Waiting waiting);
  [[nodiscard]] bool isTurnOver() const;
  /// The middle one of the times that the texts stood.
  [[nodiscard]] std::chrono::milliseconds middleStand() const;

  /// For handlers.
  [[nodiscard]] xcb_atom_t atom(std::string_view name) { return m_atoms->atom(name); }
  void put(const Request& request, xcb_atom_t type, std::uint8_t format, std::string_view bytes);
  void notify(const Request& request, xcb_atom_t property);
  /// Sends in pieces: `next` gives one after the other, nothing for an end without an end.
  using Pieces = std::function<std::optional<std::string>()>;
  void stream(const Request& request, Pieces next);
  void breakConnection();

 private:
  void runAndWait(std::function<void()> task);
  void handleEvent(const xcb_generic_event_t& event);
  void handleRequest(const Request& request);
  void handleDeleted(xcb_window_t window, xcb_atom_t property);
  void takeOwnership();
  void nextTurn();

  mutable std::mutex m_mutex;  // guards what the test reads
  std::vector<std::string> m_requested;
  std::vector<std::chrono::milliseconds> m_stands;
  bool m_isTurnOver = false;

  std::map<std::string, Handler> m_handlers;
  std::map<std::pair<xcb_window_t, xcb_atom_t>, std::pair<xcb_atom_t, Pieces>> m_streams;
  int m_turn = 0;
  int m_turns = 0;
  bool m_isTurnRead = false;
  Waiting m_waiting = Waiting::no;
  std::chrono::milliseconds m_pace{0};
  std::chrono::steady_clock::time_point m_turnStart;
  foundation::Subscription m_timer;

  std::unique_ptr<platform::X11Thread> m_thread;
  std::unique_ptr<platform::X11Atoms> m_atoms;
  xcb_window_t m_window = XCB_WINDOW_NONE;
};

}  // namespace testsupport
