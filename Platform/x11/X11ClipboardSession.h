#pragma once

#include <xcb/xcb.h>
#include <xcb/xfixes.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "Foundation/Subscription.h"
#include "Platform/freedesktop/Succession.h"
#include "Platform/freedesktop/WindowIdentity.h"
#include "Platform/x11/ManagerSelection.h"
#include "Platform/x11/SelectionReading.h"
#include "Platform/x11/SelectionServer.h"
#include "Platform/x11/SerialWorker.h"
#include "Platform/x11/X11Atoms.h"
#include "Platform/x11/X11Thread.h"
#include "Quillmonger/capture/PasteboardContent.h"
#include "Quillmonger/capture/TypeFilter.h"

namespace platform {

/// The clipboard's side of one connection: it sees each new owner, reads what is worth reading, owns what this program
/// writes, and offers on what a program leaves behind when it goes. On the thread of the connection, but for the
/// constructor, `prepare` and the destructor, which run while that thread doesn't.
class X11ClipboardSession final {
 public:
  using Deliver = std::function<void(ClipboardSnapshot)>;

  /// How long a content that is no longer on the clipboard keeps newer ones waiting.
  static constexpr std::chrono::milliseconds grace{250};
  /// After a write of our own, until the window that gets it is in front again.
  static constexpr std::chrono::milliseconds returnToFront{120};

  /// `thread` outlives this object. `deliver` gets each content in turn.
  X11ClipboardSession(X11Thread& thread, std::string selection, const quillmonger::TypeFilter& filter, Deliver deliver);
  X11ClipboardSession(const X11ClipboardSession&) = delete;
  X11ClipboardSession& operator=(const X11ClipboardSession&) = delete;
  ~X11ClipboardSession() = default;

  /// Watches the clipboard from now on; what is on it now is not delivered. False when the server can't tell of
  /// owners. Waits for the server.
  [[nodiscard]] bool prepare();

  void handleEvent(const xcb_generic_event_t& event);
  void setFilter(const quillmonger::TypeFilter& filter) { m_filter = filter; }
  /// A `write` will come. Any thread.
  void announceWrite() { ++m_writesLeft; }
  /// Takes the clipboard for these items. Announced before.
  void write(std::vector<quillmonger::PasteboardItem> items);
  /// Whether nothing that was announced is still to be written. Any thread.
  [[nodiscard]] bool isWritten() const { return m_writesLeft == 0; }

  /// The window that owns the clipboard for this program. Any thread.
  [[nodiscard]] xcb_window_t window() const { return m_window; }

 private:
  using Number = Succession::Number;
  using Items = std::vector<quillmonger::PasteboardItem>;

  /// A content that is not yet dealt with.
  struct Content {
    /// Null for one of our own.
    std::unique_ptr<SelectionReading> reading;
    std::optional<ClipboardSnapshot> built;
    std::optional<WindowIdentity> frontmost;
    bool isFrontmostKnown = false;
    foundation::Subscription settling;
    foundation::Subscription release;
    foundation::Subscription frontmostQuery;
  };
  enum class Taking { written, offeredOn };
  struct Taken {
    Taking taking;
    Items items;
  };

  void handleProperty(const xcb_generic_event_t& event);
  void handleTime(xcb_timestamp_t time);
  void handleRequest(const xcb_selection_request_event_t& event);
  void handleOwner(const xcb_xfixes_selection_notify_event_t& event, std::uint32_t sequence);
  void handleOwnerGone(xcb_timestamp_t time, std::uint32_t sequence);
  void handleSave();

  Number begin(xcb_timestamp_t time, std::uint32_t sequence);
  void supersede(Number number, std::uint32_t sequence);
  void endGrace(Number number);
  void readOwner(Number number, xcb_timestamp_t time);
  void takeOwn(Number number, Items items);
  void askForTime();
  void take(Items items, xcb_timestamp_t time, Taking taking);
  void offerOn();

  void finishReading(Number number, SelectionReading::Result result);
  void build(Number number, std::vector<std::string> types, std::function<Items()> makeItems);
  void finishBuilding(Number number, ClipboardSnapshot snapshot);
  void completeIfReady(Number number);
  void forget(Number number);
  void forgetDelivered();
  void keepForLateAnswer(std::unique_ptr<SelectionReading> reading);
  [[nodiscard]] SelectionReading* readingOf(xcb_window_t window);

  X11Thread& m_thread;
  X11Atoms m_atoms;
  const xcb_window_t m_window;
  std::uint8_t m_firstXFixesEvent = 0;
  quillmonger::TypeFilter m_filter;

  Succession m_succession;
  std::map<Number, Content> m_contents;
  /// Read no more, but their owners may still answer.
  std::list<std::pair<std::unique_ptr<SelectionReading>, foundation::Subscription>> m_lateAnswers;

  SelectionServer m_server;
  ManagerSelection m_manager;
  std::optional<Items> m_writing;
  std::atomic<unsigned> m_writesLeft = 0;
  std::map<std::uint32_t, Taken> m_takings;
  std::uint32_t m_ownSequence = 0;

  bool m_isStarting = false;
  bool m_isOwnedAtStart = false;
  /// What the latest owner offers, once it has been read with at least one byte.
  std::shared_ptr<const quillmonger::PasteboardContent> m_latestContent;
  bool m_isLatestBuilt = false;
  std::optional<xcb_timestamp_t> m_ownerGoneAt;

  SerialWorker m_worker;
};

}  // namespace platform
