#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <vector>

#include "Foundation/Subscription.h"
#include "Platform/freedesktop/ServedTypes.h"

namespace platform {

class X11Atoms;
class X11Thread;

/// Answers other programs that ask for the content which this program owns: at once, or piece by piece as each of
/// them takes it. A requestor that dies or stops taking is dropped. On the thread of the connection.
class SelectionServer final {
 public:
  /// For a requestor to take the next piece.
  static constexpr std::chrono::milliseconds patience{10'000};

  SelectionServer(X11Thread& thread, X11Atoms& atoms) : m_thread(thread), m_atoms(atoms) {}
  SelectionServer(const SelectionServer&) = delete;
  SelectionServer& operator=(const SelectionServer&) = delete;
  ~SelectionServer() = default;

  /// What is answered from now on, and since when it is owned. Transfers under way go on with what they began.
  void setContent(std::shared_ptr<const ServedTypes> content, xcb_timestamp_t time);
  /// Refuses from now on.
  void clear() { m_content = nullptr; }

  /// Tells a requestor that its answer lies in `property`, or with none that there is no answer.
  static void notify(xcb_connection_t* connection, const xcb_selection_request_event_t& request, xcb_atom_t property);

  void handleRequest(const xcb_selection_request_event_t& event);
  /// Events of requestors' windows.
  void handleProperty(const xcb_property_notify_event_t& event);
  void handleDestroyed(xcb_window_t window);

 private:
  /// A value on its way in pieces.
  struct Transfer {
    xcb_window_t requestor;
    xcb_atom_t property;
    xcb_atom_t type;
    std::shared_ptr<const std::string> bytes;
    std::size_t sent = 0;
    foundation::Subscription patience;
  };
  using Transfers = std::list<Transfer>;

  [[nodiscard]] bool answer(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property);
  [[nodiscard]] bool answerMultiple(xcb_window_t requestor, xcb_atom_t property);
  void putNumbers(xcb_window_t window, xcb_atom_t property, xcb_atom_t type, const std::vector<std::uint32_t>& numbers);
  void putBytes(xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type, std::shared_ptr<const std::string> bytes);
  void sendPiece(Transfers::iterator transfer);
  void awaitTaking(Transfers::iterator transfer);
  void drop(Transfers::iterator transfer);
  void watch(xcb_window_t window, std::uint32_t events);
  [[nodiscard]] std::size_t largestPiece() const;

  X11Thread& m_thread;
  X11Atoms& m_atoms;
  std::shared_ptr<const ServedTypes> m_content;
  xcb_timestamp_t m_time = XCB_CURRENT_TIME;
  Transfers m_transfers;
};

}  // namespace platform
