#include "Platform/x11/X11ClipboardSession.h"

#include <algorithm>
#include <utility>

#include "Foundation/Output.h"
#include "Platform/freedesktop/ServedTypes.h"
#include "Platform/x11/FrontmostWindow.h"
#include "Platform/x11/SelectionOwnership.h"
#include "Platform/x11/X11Reply.h"

namespace platform {

namespace {

using quillmonger::PasteboardContent;
using quillmonger::PasteboardItem;

constexpr std::chrono::seconds lateAnswerPatience{60};
constexpr std::size_t lateAnswerLimit = 64;
constexpr std::size_t openReadingLimit = 32;

template <typename T>
const T& as(const xcb_generic_event_t& event) {
  return reinterpret_cast<const T&>(event);
}

bool hasBytes(const PasteboardContent& content) {
  return std::ranges::any_of(content.items(), [](const PasteboardItem& item) {
    return std::ranges::any_of(item.representations, [](const auto& representation) {
      return representation.data && !representation.data->isEmpty();
    });
  });
}

std::vector<std::string> typesOf(const std::vector<PasteboardItem>& items) {
  std::vector<std::string> types;
  for (const PasteboardItem& item : items) {
    for (const auto& representation : item.representations) {
      if (std::ranges::count(types, representation.type) == 0) types.push_back(representation.type);
    }
  }
  return types;
}

}  // namespace

X11ClipboardSession::X11ClipboardSession(X11Thread& thread, std::string selection,
                                         const quillmonger::TypeFilter& filter, Deliver deliver)
    : m_thread(thread),
      m_atoms(thread.connection(), std::move(selection)),
      m_window(xcb_generate_id(thread.connection())),
      m_filter(filter),
      m_succession(std::move(deliver)),
      m_server(thread, m_atoms),
      m_manager(thread, m_atoms, m_window, [this] { handleSave(); }) {}

bool X11ClipboardSession::prepare() {
  xcb_connection_t* connection = m_thread.connection();
  const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &xcb_xfixes_id);
  if (extension == nullptr || extension->present == 0) return false;
  m_firstXFixesEvent = extension->first_event;
  const X11Reply<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
      connection, xcb_xfixes_query_version(connection, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION), nullptr));
  if (!version) return false;
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(connection, XCB_COPY_FROM_PARENT, m_window, m_thread.screen().root, 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  const xcb_atom_t clipboard = m_atoms.clipboard();
  xcb_xfixes_select_selection_input(connection, m_window, clipboard,
                                    XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                        XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                        XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
  m_isStarting = true;
  askForTime();
  // The answer comes when the server watches: whatever is copied after it is seen as a new owner.
  m_isOwnedAtStart = selectionOwner(connection, clipboard) != XCB_WINDOW_NONE;
  return true;
}

void X11ClipboardSession::handleEvent(const xcb_generic_event_t& event) {
  const int type = event.response_type & 0x7F;
  const bool isFromServer = (event.response_type & 0x80) == 0;
  if (type == XCB_SELECTION_NOTIFY) {
    if (auto* reading = readingOf(as<xcb_selection_notify_event_t>(event).requestor)) reading->handleEvent(event);
  } else if (!isFromServer) {
    return;  // another program plays the server
  } else if (type == XCB_PROPERTY_NOTIFY) {
    handleProperty(event);
  } else if (type == XCB_SELECTION_REQUEST) {
    handleRequest(as<xcb_selection_request_event_t>(event));
  } else if (type == XCB_DESTROY_NOTIFY) {
    m_server.handleDestroyed(as<xcb_destroy_notify_event_t>(event).window);
  } else if (type == m_firstXFixesEvent + XCB_XFIXES_SELECTION_NOTIFY) {
    handleOwner(as<xcb_xfixes_selection_notify_event_t>(event), event.full_sequence);
  }
}

void X11ClipboardSession::handleProperty(const xcb_generic_event_t& event) {
  const auto& property = as<xcb_property_notify_event_t>(event);
  if (property.window == m_window) {
    handleTime(property.time);
  } else if (auto* reading = readingOf(property.window)) {
    reading->handleEvent(event);
  } else {
    m_server.handleProperty(property);
  }
}

void X11ClipboardSession::handleRequest(const xcb_selection_request_event_t& event) {
  if (event.selection == m_atoms.atom("CLIPBOARD_MANAGER")) {
    m_manager.handleRequest(event);
  } else {
    m_server.handleRequest(event);
  }
}

// A request needs a moment of the server's clock; a change of a property is how it is told.
void X11ClipboardSession::askForTime() {
  xcb_change_property(m_thread.connection(), XCB_PROP_MODE_APPEND, m_window, m_atoms.atom("QUILLMONGER_TIME"),
                      XCB_ATOM_INTEGER, 32, 0, nullptr);
}

void X11ClipboardSession::handleTime(xcb_timestamp_t time) {
  if (std::exchange(m_isStarting, false)) {
    // Programs that quit ask about the desktop's clipboard, of which a watcher of another selection knows nothing.
    if (m_atoms.clipboard() == m_atoms.atom("CLIPBOARD")) m_manager.take(time);
    if (m_succession.latest() == 0 && m_isOwnedAtStart) {
      const Number number = m_succession.begin(time);
      m_succession.complete(number, std::nullopt);
      m_succession.settle(number);
      readOwner(number, time);
    }
  }
  if (auto items = std::exchange(m_writing, std::nullopt)) {
    take(*std::move(items), time, Taking::written);
    --m_writesLeft;
  }
}

void X11ClipboardSession::write(Items items) {
  if (m_writing) --m_writesLeft;
  m_writing = std::move(items);
  askForTime();
}

void X11ClipboardSession::take(Items items, xcb_timestamp_t time, Taking taking) {
  auto served = std::make_shared<const ServedTypes>(items);
  const SelectionTaking taken = takeSelection(m_thread.connection(), m_window, m_atoms.clipboard(), time);
  if (!taken.isConfirmed) {
    if (taking == Taking::written) foundation::printLine("another program has taken the clipboard from a write");
    return;
  }
  m_ownSequence = taken.sequence;
  m_server.setContent(std::move(served), time);
  m_takings.insert_or_assign(taken.sequence, Taken{.taking = taking, .items = std::move(items)});
}

void X11ClipboardSession::handleOwner(const xcb_xfixes_selection_notify_event_t& event, std::uint32_t sequence) {
  if (event.subtype != XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER) {
    return handleOwnerGone(event.timestamp, sequence);
  }
  if (event.owner == m_window) {
    auto taken = m_takings.extract(sequence);
    m_takings.erase(m_takings.begin(), m_takings.upper_bound(sequence));
    if (taken && taken.mapped().taking == Taking::written) {
      takeOwn(begin(event.timestamp, sequence), std::move(taken.mapped().items));
    }
    return;
  }
  // What we have taken since then is not touched by an owner before it.
  if (sequence >= m_ownSequence) m_server.clear();
  const Number number = begin(event.timestamp, sequence);
  if (event.owner == XCB_WINDOW_NONE) {
    m_isLatestBuilt = true;
    m_succession.complete(number, ClipboardSnapshot());
  } else {
    readOwner(number, event.timestamp);
  }
}

X11ClipboardSession::Number X11ClipboardSession::begin(xcb_timestamp_t time, std::uint32_t sequence) {
  const Number previous = m_succession.latest();
  m_latestContent = nullptr;
  m_isLatestBuilt = false;
  m_ownerGoneAt.reset();
  m_manager.answer(ManagerSelection::Saved::no);
  const Number number = m_succession.begin(time);
  supersede(previous, sequence);
  forgetDelivered();
  m_contents[number].settling = m_thread.after(Succession::shortestStand, [this, number] {
    m_succession.settle(number);
    forget(number);
  });
  return number;
}

void X11ClipboardSession::supersede(Number number, std::uint32_t sequence) {
  const auto content = m_contents.find(number);
  if (content == m_contents.end()) return;
  SelectionReading* reading = content->second.reading.get();
  if (!m_succession.isOpen(number)) {
    if (reading != nullptr) reading->end(SelectionReading::Streaming::end);
    return forget(number);
  }
  content->second.release = m_thread.after(grace, [this, number] { endGrace(number); });
  if (reading != nullptr) reading->supersede(sequence);
}

void X11ClipboardSession::endGrace(Number number) {
  Content& content = m_contents.at(number);
  if (content.reading && !content.reading->isFinished()) content.reading->end(SelectionReading::Streaming::letGoOn);
  const auto left = m_contents.find(number);
  if (left == m_contents.end()) return;
  if (left->second.reading && !left->second.reading->isFinished()) return m_succession.release(number);
  // What has been read is being digested, and comes in its turn unless that takes long.
  left->second.release = m_thread.after(grace, [this, number] { m_succession.release(number); });
}

void X11ClipboardSession::readOwner(Number number, xcb_timestamp_t time) {
  const auto isOpen = [](const auto& content) {
    return content.second.reading != nullptr && !content.second.reading->isFinished();
  };
  if (std::ranges::count_if(m_contents, isOpen) >= static_cast<std::ptrdiff_t>(openReadingLimit)) {
    std::ranges::find_if(m_contents, isOpen)->second.reading->end(SelectionReading::Streaming::end);
  }
  Content& content = m_contents[number];
  content.reading = std::make_unique<SelectionReading>(
      m_thread, m_atoms, time, m_filter,
      [this, number](SelectionReading::Result result) { finishReading(number, std::move(result)); });
  content.reading->start();
  content.frontmost = frontmostWindow(m_thread.connection(), m_thread.screen().root, m_atoms);
  content.isFrontmostKnown = true;
}

void X11ClipboardSession::takeOwn(Number number, Items items) {
  Content& content = m_contents[number];
  content.frontmostQuery = m_thread.after(returnToFront, [this, number] {
    const auto found = m_contents.find(number);
    if (found == m_contents.end()) return;
    found->second.frontmost = frontmostWindow(m_thread.connection(), m_thread.screen().root, m_atoms);
    found->second.isFrontmostKnown = true;
    completeIfReady(number);
  });
  auto types = typesOf(items);
  build(number, std::move(types), [items = std::move(items)] { return items; });
}

void X11ClipboardSession::finishReading(Number number, SelectionReading::Result result) {
  const bool isWanted = m_succession.isOpen(number) || number == m_succession.latest();
  if (!isWanted) return;
  if (!result.values) return finishBuilding(number, {.types = result.offered.types(), .content = {}, .frontmost = {}});
  auto types = result.offered.types();
  const auto shared = std::make_shared<SelectionReading::Result>(std::move(result));
  build(number, std::move(types), [shared] {
    std::vector<std::optional<foundation::Data>> values;
    for (auto& value : *shared->values) {
      values.push_back(value ? std::optional(foundation::Data(*std::move(value))) : std::nullopt);
    }
    return shared->offered.items(values);
  });
}

// Digests of large contents take their time; the next owner must not wait for them.
void X11ClipboardSession::build(Number number, std::vector<std::string> types, std::function<Items()> makeItems) {
  m_worker.run([this, number, types = std::move(types), makeItems = std::move(makeItems)] {
    ClipboardSnapshot snapshot{.types = types, .content = {}, .frontmost = {}};
    Items items = makeItems();
    // A list of URLs tells only by its bytes of which kind they are.
    if (!items.empty() && !items.front().representations.empty()) snapshot.types = typesOf(items);
    snapshot.content = std::make_shared<const PasteboardContent>(std::move(items));
    m_thread.run([this, number, snapshot = std::move(snapshot)] { finishBuilding(number, snapshot); });
  });
}

void X11ClipboardSession::finishBuilding(Number number, ClipboardSnapshot snapshot) {
  const bool isUsable = snapshot.content && hasBytes(*snapshot.content);
  const bool isLatest = number == m_succession.latest();
  if (isLatest) {
    m_isLatestBuilt = true;
    if (isUsable) m_latestContent = snapshot.content;
    m_manager.answer(isUsable ? ManagerSelection::Saved::yes : ManagerSelection::Saved::no);
    if (m_ownerGoneAt) offerOn();
  }
  const auto found = m_contents.find(number);
  if (found == m_contents.end()) return;
  const bool isStanding = isLatest && !m_ownerGoneAt;
  if (snapshot.content && !isUsable && !isStanding) {
    // Nothing is left of it that anyone could use.
    m_succession.complete(number, std::nullopt);
    return forget(number);
  }
  found->second.built = std::move(snapshot);
  completeIfReady(number);
}

void X11ClipboardSession::completeIfReady(Number number) {
  Content& content = m_contents.at(number);
  if (!content.built || !content.isFrontmostKnown) return;
  content.built->frontmost = content.frontmost;
  m_succession.complete(number, std::move(content.built));
  forget(number);
}

void X11ClipboardSession::forget(Number number) {
  const auto content = m_contents.find(number);
  if (content == m_contents.end() || m_succession.isOpen(number)) return;
  if (content->second.reading && !content->second.reading->isFinished()) return;
  keepForLateAnswer(std::move(content->second.reading));
  m_contents.erase(content);
}

// A content that waited for a slower one before it is handed on with that one, when none of its own events comes any
// more.
void X11ClipboardSession::forgetDelivered() {
  for (auto content = m_contents.begin(); content != m_contents.end();)
    forget((content++)->first);
}

void X11ClipboardSession::keepForLateAnswer(std::unique_ptr<SelectionReading> reading) {
  if (!reading || !reading->isAnswerPending()) return;
  if (m_lateAnswers.size() == lateAnswerLimit) m_lateAnswers.pop_front();
  const auto place =
      m_lateAnswers.insert(m_lateAnswers.end(), std::pair(std::move(reading), foundation::Subscription()));
  place->second = m_thread.after(lateAnswerPatience, [this, place] { m_lateAnswers.erase(place); });
}

void X11ClipboardSession::handleOwnerGone(xcb_timestamp_t time, std::uint32_t sequence) {
  if (sequence < m_ownSequence) return;
  m_ownerGoneAt = time;
  const auto latest = m_contents.find(m_succession.latest());
  if (latest != m_contents.end() && latest->second.reading) {
    latest->second.reading->end(SelectionReading::Streaming::end);
  }
  if (m_isLatestBuilt) offerOn();
}

void X11ClipboardSession::offerOn() {
  const bool isOwned = selectionOwner(m_thread.connection(), m_atoms.clipboard()) != XCB_WINDOW_NONE;
  if (m_latestContent && !isOwned) take(m_latestContent->items(), *m_ownerGoneAt, Taking::offeredOn);
}

void X11ClipboardSession::handleSave() {
  if (m_isLatestBuilt) m_manager.answer(m_latestContent ? ManagerSelection::Saved::yes : ManagerSelection::Saved::no);
}

SelectionReading* X11ClipboardSession::readingOf(xcb_window_t window) {
  const auto found = std::ranges::find_if(m_contents, [window](const auto& content) {
    return content.second.reading && content.second.reading->window() == window;
  });
  return found != m_contents.end() ? found->second.reading.get() : nullptr;
}

}  // namespace platform
