#include "tests/support/x11/HostileOwner.h"

#include <sys/socket.h>

#include <algorithm>
#include <future>
#include <stdexcept>
#include <utility>

#include "Platform/x11/SelectionOwnership.h"

namespace testsupport {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds longestTurnWait{1000};

}  // namespace

HostileOwner::HostileOwner(const std::string& display) : m_thread(platform::X11Thread::connect(display)) {
  if (!m_thread) throw std::runtime_error("no test display");
  m_atoms = std::make_unique<platform::X11Atoms>(m_thread->connection());
  m_window = xcb_generate_id(m_thread->connection());
  xcb_create_window(m_thread->connection(), XCB_COPY_FROM_PARENT, m_window, m_thread->screen().root, 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
  m_thread->start([this](const xcb_generic_event_t& event) { handleEvent(event); }, [] {});
}

HostileOwner::~HostileOwner() { quit(); }

void HostileOwner::answer(const std::string& target, Handler handler) {
  runAndWait([this, &target, &handler] { m_handlers[target] = std::move(handler); });
}

void HostileOwner::own() {
  runAndWait([this] { takeOwnership(); });
}

void HostileOwner::disown() {
  runAndWait([this] {
    xcb_set_selection_owner(m_thread->connection(), XCB_WINDOW_NONE, atom("CLIPBOARD"), XCB_CURRENT_TIME);
    static_cast<void>(platform::selectionOwner(m_thread->connection(), atom("CLIPBOARD")));
  });
}

void HostileOwner::quit() {
  if (!m_thread) return;
  m_thread->stop();
  m_timer.cancel();
  m_atoms.reset();
  m_thread.reset();
}

void HostileOwner::runAndWait(std::function<void()> task) {
  std::promise<void> done;
  m_thread->run([&] {
    task();
    done.set_value();
  });
  if (done.get_future().wait_for(std::chrono::seconds(30)) != std::future_status::ready) std::abort();
}

std::vector<std::string> HostileOwner::requestedTargets() const {
  const std::lock_guard lock(m_mutex);
  return m_requested;
}

bool HostileOwner::isTurnOver() const {
  const std::lock_guard lock(m_mutex);
  return m_isTurnOver;
}

milliseconds HostileOwner::middleStand() const {
  const std::lock_guard lock(m_mutex);
  auto stands = m_stands;
  std::ranges::sort(stands);
  return stands.empty() ? milliseconds{0} : stands[stands.size() / 2];
}

void HostileOwner::takeOwnership() {
  if (!platform::takeSelection(m_thread->connection(), m_window, atom("CLIPBOARD"), XCB_CURRENT_TIME).isConfirmed) {
    throw std::runtime_error("the test's owner does not own the clipboard");
  }
}

void HostileOwner::ownInTurn(int count, milliseconds pace, Waiting waiting) {
  runAndWait([this, count, pace, waiting] {
    m_turns = count;
    m_pace = pace;
    m_waiting = waiting;
    m_handlers["UTF8_STRING"] = [](HostileOwner& owner, const Request& request) {
      owner.put(request, request.target, 8, std::to_string(owner.m_turn));
      owner.notify(request, request.property);
      owner.m_isTurnRead = true;
    };
    nextTurn();
  });
}

void HostileOwner::nextTurn() {
  const auto stood = std::chrono::duration_cast<milliseconds>(Clock::now() - m_turnStart);
  if (m_turn > 0 && m_waiting == Waiting::untilRead && !m_isTurnRead && stood < longestTurnWait) {
    m_timer = m_thread->after(milliseconds(1), [this] { nextTurn(); });
    return;
  }
  const std::lock_guard lock(m_mutex);
  if (m_turn > 0) m_stands.push_back(stood);
  m_isTurnOver = m_turn == m_turns;
  if (m_isTurnOver) return;
  ++m_turn;
  m_isTurnRead = false;
  takeOwnership();
  m_turnStart = Clock::now();
  m_timer = m_thread->after(m_pace, [this] { nextTurn(); });
}

void HostileOwner::handleEvent(const xcb_generic_event_t& event) {
  const int type = event.response_type & 0x7F;
  if (type == XCB_SELECTION_REQUEST) {
    const auto& request = reinterpret_cast<const xcb_selection_request_event_t&>(event);
    handleRequest({request.requestor, request.selection, request.target, request.property, request.time});
  } else if (type == XCB_PROPERTY_NOTIFY) {
    const auto& property = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    if (property.state == XCB_PROPERTY_DELETE) handleDeleted(property.window, property.atom);
  }
}

void HostileOwner::handleRequest(const Request& request) {
  const auto names = m_atoms->names({request.target});
  const std::string name = names.empty() ? std::string() : names.front();
  {
    const std::lock_guard lock(m_mutex);
    m_requested.push_back(name);
  }
  if (const auto handler = m_handlers.find(name); handler != m_handlers.end()) return handler->second(*this, request);
  if (name != "TARGETS") return notify(request, XCB_ATOM_NONE);
  std::vector<std::string> targets = {"TARGETS"};
  for (const auto& handler : m_handlers)
    targets.push_back(handler.first);
  const auto atoms = m_atoms->atoms(targets);
  put(request, XCB_ATOM_ATOM, 32,
      std::string_view(reinterpret_cast<const char*>(atoms.data()), atoms.size() * sizeof(xcb_atom_t)));
  notify(request, request.property);
}

void HostileOwner::put(const Request& request, xcb_atom_t type, std::uint8_t format, std::string_view bytes) {
  xcb_change_property(m_thread->connection(), XCB_PROP_MODE_REPLACE, request.requestor, request.property, type, format,
                      static_cast<std::uint32_t>(bytes.size() * 8 / format), bytes.data());
}

void HostileOwner::notify(const Request& request, xcb_atom_t property) {
  xcb_selection_notify_event_t event{};
  event.response_type = XCB_SELECTION_NOTIFY;
  event.time = request.time;
  event.requestor = request.requestor;
  event.selection = request.selection;
  event.target = request.target;
  event.property = property;
  xcb_send_event(m_thread->connection(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                 reinterpret_cast<const char*>(&event));
}

void HostileOwner::stream(const Request& request, Pieces next) {
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_change_window_attributes(m_thread->connection(), request.requestor, XCB_CW_EVENT_MASK, &events);
  m_streams[{request.requestor, request.property}] = {request.target, std::move(next)};
  const std::uint32_t announcedSize = 0xFFFFFFFF;  // a lie, as any size may be
  put(request, atom("INCR"), 32, std::string_view(reinterpret_cast<const char*>(&announcedSize), 4));
  notify(request, request.property);
}

void HostileOwner::handleDeleted(xcb_window_t window, xcb_atom_t property) {
  const auto stream = m_streams.find({window, property});
  if (stream == m_streams.end()) return;
  const auto piece = stream->second.second();
  if (!piece) return;
  const Request place{.requestor = window, .selection = 0, .target = 0, .property = property, .time = 0};
  put(place, stream->second.first, 8, *piece);
  if (piece->empty()) m_streams.erase({window, property});
}

void HostileOwner::breakConnection() {
  xcb_flush(m_thread->connection());
  shutdown(xcb_get_file_descriptor(m_thread->connection()), SHUT_RDWR);
}

}  // namespace testsupport
