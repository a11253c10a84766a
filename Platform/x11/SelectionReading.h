#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Foundation/Subscription.h"
#include "Platform/freedesktop/OfferedTypes.h"
#include "Platform/x11/IncomingTransfer.h"
#include "Quillmonger/capture/TypeFilter.h"

namespace platform {

/// The conversation with one owner of the clipboard: what it offers, whether that is worth reading, and the bytes of
/// one type after the other. It has a window of its own, so that an answer that comes late, or from an earlier owner,
/// is never taken for another's. On the thread of the connection.
class SelectionReading final {
 public:
  /// For a whole content.
  static constexpr std::chrono::milliseconds patience{15'000};
  /// Until the question for the types is asked again: some programs drop what they are asked while they wait for an
  /// answer themselves, as a word processor does that looks at what it takes the clipboard from.
  static constexpr std::chrono::milliseconds offerPatience{500};
  static constexpr std::size_t byteLimit = std::size_t{512} << 20;

  struct Result {
    OfferedTypes offered;
    /// One for each request of `offered`, absent where nothing usable came; absent as a whole for a content that the
    /// filter rejected, of which nothing was asked.
    std::optional<std::vector<std::optional<std::string>>> values;
  };
  using Completion = std::function<void(Result result)>;

  /// `time`: when the owner came, on the server's clock. `completion` is called once, unless this object goes before,
  /// and may end this object.
  SelectionReading(X11Thread& thread, X11Atoms& atoms, xcb_timestamp_t time, const quillmonger::TypeFilter& filter,
                   Completion completion);
  SelectionReading(const SelectionReading&) = delete;
  SelectionReading& operator=(const SelectionReading&) = delete;
  ~SelectionReading();

  void start();
  /// Events of its window alone.
  void handleEvent(const xcb_generic_event_t& event);
  [[nodiscard]] xcb_window_t window() const { return m_window; }

  /// Another owner has come, by the request with this number at the latest: a question that went out after it went to
  /// that one. Nothing more is asked; what is under way may come in.
  void supersede(std::uint32_t sequence);
  enum class Streaming { end, letGoOn };
  /// Ends with what has been read. An owner that is sending in pieces may be let go on.
  void end(Streaming streaming);

  [[nodiscard]] bool isFinished() const { return !m_completion; }
  /// Whether the owner may still answer: then its window must outlive the answer, since many programs die of the
  /// error that they get otherwise.
  [[nodiscard]] bool isAnswerPending() const { return m_isAnswerPending; }

 private:
  using Outcome = IncomingTransfer::Outcome;

  void askForOffer();
  struct Asked {
    xcb_atom_t target;
    xcb_atom_t property;
    std::chrono::milliseconds patience = IncomingTransfer::usualPatience;
  };
  void ask(const Asked& asked, IncomingTransfer::Completion completion);
  void takeOffer(Outcome outcome, const X11Property& answer);
  void judge(OfferedTypes offered);
  void askNext();
  void takeValue(Outcome outcome, X11Property answer);
  [[nodiscard]] bool isOfUsableType(const X11Property& answer, const std::string& name);
  void finish();

  X11Thread& m_thread;
  X11Atoms& m_atoms;
  const xcb_timestamp_t m_time;
  const quillmonger::TypeFilter m_filter;
  Completion m_completion;
  const xcb_window_t m_window;

  std::optional<OfferedTypes> m_offered;
  std::vector<std::optional<std::string>> m_values;
  std::size_t m_byteCount = 0;
  std::size_t m_request = 0;  // the one that is being asked for, and which of its names
  std::size_t m_name = 0;
  unsigned m_silentQuestions = 0;
  bool m_isAskedAgain = false;
  bool m_isRejected = false;
  bool m_isSuperseded = false;
  bool m_isAnswerPending = false;
  std::unique_ptr<IncomingTransfer> m_transfer;
  foundation::Subscription m_patience;
};

}  // namespace platform
