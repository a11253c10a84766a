#include "Platform/x11/SelectionServer.h"

#include <algorithm>
#include <utility>

#include "Platform/x11/X11Atoms.h"
#include "Platform/x11/X11Property.h"
#include "Platform/x11/X11Thread.h"

namespace platform {

namespace {

constexpr std::size_t pieceLimit = std::size_t{1} << 20;
constexpr std::size_t transferLimit = 256;
constexpr std::size_t pairsLimit = 256;

// Any program may name any window as the one that asks; with ours it would end the events that we wait for.
bool isOurs(xcb_connection_t* connection, xcb_window_t window) {
  const xcb_setup_t* setup = xcb_get_setup(connection);
  return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

}  // namespace

void SelectionServer::notify(xcb_connection_t* connection, const xcb_selection_request_event_t& request,
                             xcb_atom_t property) {
  xcb_selection_notify_event_t event{};
  event.response_type = XCB_SELECTION_NOTIFY;
  event.time = request.time;
  event.requestor = request.requestor;
  event.selection = request.selection;
  event.target = request.target;
  event.property = property;
  xcb_send_event(connection, 0, request.requestor, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
}

void SelectionServer::setContent(std::shared_ptr<const ServedTypes> content, xcb_timestamp_t time) {
  m_content = std::move(content);
  m_time = time;
}

void SelectionServer::handleRequest(const xcb_selection_request_event_t& event) {
  // Programs from before the convention leave the property out.
  const xcb_atom_t property = event.property != XCB_ATOM_NONE ? event.property : event.target;
  const bool isMultiple = event.target == m_atoms.atom("MULTIPLE");
  const bool isAnswerable = m_content && !isOurs(m_thread.connection(), event.requestor);
  const bool isAnswered = isAnswerable && (isMultiple ? answerMultiple(event.requestor, property)
                                                      : answer(event.requestor, event.target, property));
  notify(m_thread.connection(), event, isAnswered ? property : static_cast<xcb_atom_t>(XCB_ATOM_NONE));
}

bool SelectionServer::answerMultiple(xcb_window_t requestor, xcb_atom_t property) {
  const auto request =
      readProperty(m_thread.connection(), requestor, property, pairsLimit * 8, AfterReading::keepProperty);
  std::vector<std::uint32_t> pairs = request ? request->numbers() : std::vector<std::uint32_t>();
  if (pairs.empty() || pairs.size() % 2 != 0) return false;
  const xcb_atom_t multiple = m_atoms.atom("MULTIPLE");
  for (std::size_t index = 0; index < pairs.size(); index += 2) {
    const bool isUsable = pairs[index] != multiple && pairs[index + 1] != XCB_ATOM_NONE;
    if (!isUsable || !answer(requestor, pairs[index], pairs[index + 1])) pairs[index + 1] = XCB_ATOM_NONE;
  }
  putNumbers(requestor, property, m_atoms.atom("ATOM_PAIR"), pairs);
  return true;
}

bool SelectionServer::answer(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property) {
  if (target == m_atoms.atom("TARGETS")) {
    std::vector<std::string> names = {"TARGETS", "TIMESTAMP", "MULTIPLE"};
    names.insert(names.end(), m_content->names().begin(), m_content->names().end());
    putNumbers(requestor, property, XCB_ATOM_ATOM, m_atoms.atoms(names));
    return true;
  }
  if (target == m_atoms.atom("TIMESTAMP")) {
    putNumbers(requestor, property, XCB_ATOM_INTEGER, {m_time});
    return true;
  }
  const auto names = m_atoms.names({target});
  auto bytes = names.empty() ? nullptr : m_content->bytes(names.front());
  if (!bytes) return false;
  // "TEXT" asks for any encoding; the answer's type tells which.
  const xcb_atom_t type = names.front() == "TEXT" ? m_atoms.atom("UTF8_STRING") : target;
  putBytes(requestor, property, type, std::move(bytes));
  return true;
}

void SelectionServer::putNumbers(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                                 const std::vector<std::uint32_t>& numbers) {
  xcb_change_property(m_thread.connection(), XCB_PROP_MODE_REPLACE, window, property, type, 32,
                      static_cast<std::uint32_t>(numbers.size()), numbers.data());
}

void SelectionServer::putBytes(xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type,
                               std::shared_ptr<const std::string> bytes) {
  if (bytes->size() <= largestPiece()) {
    xcb_change_property(m_thread.connection(), XCB_PROP_MODE_REPLACE, requestor, property, type, 8,
                        static_cast<std::uint32_t>(bytes->size()), bytes->data());
    return;
  }
  // The same place asked for again: the earlier transfer is one that its requestor has given up.
  const auto same = std::ranges::find_if(m_transfers, [requestor, property](const Transfer& transfer) {
    return transfer.requestor == requestor && transfer.property == property;
  });
  if (same != m_transfers.end()) drop(same);
  if (m_transfers.size() == transferLimit) drop(m_transfers.begin());
  watch(requestor, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
  const auto size = static_cast<std::uint32_t>(std::min<std::size_t>(bytes->size(), UINT32_MAX));
  m_transfers.push_back(
      {.requestor = requestor, .property = property, .type = type, .bytes = std::move(bytes), .patience = {}});
  awaitTaking(std::prev(m_transfers.end()));
  putNumbers(requestor, property, m_atoms.atom("INCR"), {size});
}

void SelectionServer::handleProperty(const xcb_property_notify_event_t& event) {
  if (event.state != XCB_PROPERTY_DELETE) return;
  const auto transfer = std::ranges::find_if(m_transfers, [&event](const Transfer& candidate) {
    return candidate.requestor == event.window && candidate.property == event.atom;
  });
  if (transfer != m_transfers.end()) sendPiece(transfer);
}

void SelectionServer::sendPiece(Transfers::iterator transfer) {
  const std::size_t length = std::min(transfer->bytes->size() - transfer->sent, pieceLimit);
  xcb_change_property(m_thread.connection(), XCB_PROP_MODE_REPLACE, transfer->requestor, transfer->property,
                      transfer->type, 8, static_cast<std::uint32_t>(length), transfer->bytes->data() + transfer->sent);
  transfer->sent += length;
  // The empty piece is the end.
  if (length == 0) return drop(transfer);
  awaitTaking(transfer);
}

void SelectionServer::awaitTaking(Transfers::iterator transfer) {
  transfer->patience = m_thread.after(patience, [this, transfer] { drop(transfer); });
}

void SelectionServer::handleDestroyed(xcb_window_t window) {
  std::erase_if(m_transfers, [window](const Transfer& transfer) { return transfer.requestor == window; });
}

void SelectionServer::drop(Transfers::iterator transfer) {
  const xcb_window_t window = transfer->requestor;
  m_transfers.erase(transfer);
  if (std::ranges::count(m_transfers, window, &Transfer::requestor) == 0) watch(window, XCB_EVENT_MASK_NO_EVENT);
}

void SelectionServer::watch(xcb_window_t window, std::uint32_t events) {
  xcb_change_window_attributes(m_thread.connection(), window, XCB_CW_EVENT_MASK, &events);
}

std::size_t SelectionServer::largestPiece() const {
  constexpr std::size_t requestHeader = 32;
  return std::size_t{xcb_get_maximum_request_length(m_thread.connection())} * 4 - requestHeader;
}

}  // namespace platform
