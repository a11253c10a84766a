#include "Platform/x11/ManagerSelection.h"

#include <utility>

#include "Platform/x11/SelectionOwnership.h"
#include "Platform/x11/SelectionServer.h"
#include "Platform/x11/X11Atoms.h"
#include "Platform/x11/X11Thread.h"

namespace platform {

namespace {

constexpr std::size_t waitingLimit = 64;

}  // namespace

ManagerSelection::ManagerSelection(X11Thread& thread, X11Atoms& atoms, xcb_window_t window,
                                   std::function<void()> onSave)
    : m_thread(thread), m_atoms(atoms), m_window(window), m_onSave(std::move(onSave)) {}

void ManagerSelection::take(xcb_timestamp_t time) {
  const xcb_atom_t selection = m_atoms.atom("CLIPBOARD_MANAGER");
  if (selectionOwner(m_thread.connection(), selection) != XCB_WINDOW_NONE) return;
  if (!takeSelection(m_thread.connection(), m_window, selection, time).isConfirmed) return;
  m_time = time;
  announce(time);
}

// Programs that started before there was a manager learn of it so.
void ManagerSelection::announce(xcb_timestamp_t time) {
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = m_thread.screen().root;
  event.type = m_atoms.atom("MANAGER");
  event.data.data32[0] = time;
  event.data.data32[1] = m_atoms.atom("CLIPBOARD_MANAGER");
  event.data.data32[2] = m_window;
  xcb_send_event(m_thread.connection(), 0, event.window, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                 reinterpret_cast<const char*>(&event));
}

void ManagerSelection::handleRequest(const xcb_selection_request_event_t& event) {
  const xcb_atom_t property = event.property != XCB_ATOM_NONE ? event.property : event.target;
  if (event.target == m_atoms.atom("SAVE_TARGETS") && m_waiting.size() < waitingLimit) {
    m_waiting.push_back(event);
    m_waiting.back().property = property;
    m_onSave();
  } else if (event.target == m_atoms.atom("TARGETS")) {
    const auto targets = m_atoms.atoms({"TARGETS", "TIMESTAMP", "SAVE_TARGETS"});
    xcb_change_property(m_thread.connection(), XCB_PROP_MODE_REPLACE, event.requestor, property, XCB_ATOM_ATOM, 32,
                        static_cast<std::uint32_t>(targets.size()), targets.data());
    SelectionServer::notify(m_thread.connection(), event, property);
  } else if (event.target == m_atoms.atom("TIMESTAMP")) {
    xcb_change_property(m_thread.connection(), XCB_PROP_MODE_REPLACE, event.requestor, property, XCB_ATOM_INTEGER, 32,
                        1, &m_time);
    SelectionServer::notify(m_thread.connection(), event, property);
  } else {
    SelectionServer::notify(m_thread.connection(), event, XCB_ATOM_NONE);
  }
}

void ManagerSelection::answer(Saved saved) {
  for (const xcb_selection_request_event_t& request : std::exchange(m_waiting, {})) {
    if (saved == Saved::yes) {
      // The convention's answer to what is done rather than told: a property without a value.
      xcb_change_property(m_thread.connection(), XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                          m_atoms.atom("NULL"), 32, 0, nullptr);
    }
    SelectionServer::notify(m_thread.connection(), request,
                            saved == Saved::yes ? request.property : static_cast<xcb_atom_t>(XCB_ATOM_NONE));
  }
}

}  // namespace platform
