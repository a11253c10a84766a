#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "Foundation/Subscription.h"
#include "Platform/x11/X11Property.h"

namespace platform {

class X11Atoms;
class X11Thread;

/// One question to the owner of a selection, and its answer, received in one piece or in many. Ends by itself when
/// the owner makes no progress. On the thread of the connection.
class IncomingTransfer final {
 public:
  static constexpr std::chrono::milliseconds usualPatience{2000};

  enum class Outcome {
    answered,
    refused,
    /// The answer is too large, broken off or made of pieces that don't belong together.
    unusable,
    /// Nothing came for as long as the question's patience; it may still come.
    silent,
  };
  using Completion = std::function<void(Outcome outcome, X11Property answer)>;

  struct Question {
    /// Our window, and its property for the answer, which no question for something else uses as long as this one is
    /// unanswered.
    xcb_window_t requestor;
    xcb_atom_t property;
    xcb_atom_t selection;
    xcb_atom_t target;
    xcb_timestamp_t time;
    /// Bytes that the answer may have.
    std::size_t limit;
    std::chrono::milliseconds patience = usualPatience;
  };

  /// Asks. `completion` is called once, unless this object goes before, and may end this object.
  IncomingTransfer(X11Thread& thread, X11Atoms& atoms, const Question& question, Completion completion);
  IncomingTransfer(const IncomingTransfer&) = delete;
  IncomingTransfer& operator=(const IncomingTransfer&) = delete;
  ~IncomingTransfer() = default;

  /// Events of the requestor window.
  void handleNotify(const xcb_selection_notify_event_t& event);
  void handleProperty(const xcb_property_notify_event_t& event);

  /// Whether the owner has begun to send in pieces.
  [[nodiscard]] bool isStreaming() const { return m_isStreaming; }
  /// The number of the request, by which it is told whether it came before or after another one or an event.
  [[nodiscard]] std::uint32_t sequence() const { return m_sequence; }

 private:
  void beginStream(const X11Property& announcement);
  void receivePiece();
  void restartPatience();
  void finish(Outcome outcome, X11Property answer = {});

  X11Thread& m_thread;
  X11Atoms& m_atoms;
  Question m_question;
  Completion m_completion;
  std::uint32_t m_sequence = 0;
  bool m_isStreaming = false;
  X11Property m_received;
  foundation::Subscription m_patience;
};

}  // namespace platform
