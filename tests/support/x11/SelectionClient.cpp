#include "tests/support/x11/SelectionClient.h"

#include <poll.h>

#include <chrono>
#include <cstdlib>

#include "Platform/x11/SelectionOwnership.h"

namespace testsupport {

namespace {

constexpr std::size_t sizeLimit = std::size_t{1} << 30;
constexpr std::chrono::seconds limit{30};

}  // namespace

SelectionClient::SelectionClient(const std::string& display)
    : m_connection(xcb_connect(display.c_str(), nullptr)),
      m_root(xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root),
      m_window(xcb_generate_id(m_connection)),
      m_atoms(m_connection) {
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                    XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  xcb_flush(m_connection);
}

SelectionClient::~SelectionClient() { xcb_disconnect(m_connection); }

std::unique_ptr<xcb_generic_event_t, void (*)(void*)> SelectionClient::nextEvent() {
  const auto end = std::chrono::steady_clock::now() + limit;
  xcb_flush(m_connection);
  for (;;) {
    xcb_generic_event_t* event = xcb_poll_for_event(m_connection);
    if (event != nullptr || std::chrono::steady_clock::now() > end) return {event, &std::free};
    pollfd source{xcb_get_file_descriptor(m_connection), POLLIN, 0};
    poll(&source, 1, 100);
  }
}

bool SelectionClient::convert(std::string_view selection, std::string_view target, xcb_atom_t property) {
  xcb_convert_selection(m_connection, m_window, m_atoms.atom(selection), m_atoms.atom(target), property,
                        XCB_CURRENT_TIME);
  while (const auto event = nextEvent()) {
    if ((event->response_type & 0x7F) != XCB_SELECTION_NOTIFY) continue;
    return reinterpret_cast<const xcb_selection_notify_event_t&>(*event).property != XCB_ATOM_NONE;
  }
  return false;
}

bool SelectionClient::awaitNewValue(xcb_atom_t property) {
  while (const auto event = nextEvent()) {
    if ((event->response_type & 0x7F) != XCB_PROPERTY_NOTIFY) continue;
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
    if (change.atom == property && change.state == XCB_PROPERTY_NEW_VALUE) return true;
  }
  return false;
}

std::optional<platform::X11Property> SelectionClient::take(xcb_atom_t property) {
  using platform::AfterReading;
  auto value = platform::readProperty(m_connection, m_window, property, sizeLimit, AfterReading::deleteProperty);
  if (!value || value->type != m_atoms.atom("INCR")) return value;
  platform::X11Property whole;
  while (awaitNewValue(property)) {
    auto piece = platform::readProperty(m_connection, m_window, property, sizeLimit, AfterReading::deleteProperty);
    if (!piece) continue;  // the notice of a value that has been taken already
    if (piece->bytes.empty()) return whole;
    whole.type = piece->type;
    whole.format = piece->format;
    whole.bytes += piece->bytes;
  }
  return std::nullopt;
}

std::optional<platform::X11Property> SelectionClient::ask(std::string_view selection, std::string_view target) {
  const xcb_atom_t property = m_atoms.atom("TEST_ANSWER");
  if (!convert(selection, target, property)) return std::nullopt;
  return take(property);
}

std::vector<std::string> SelectionClient::targets(std::string_view selection) {
  const auto answer = ask(selection, "TARGETS");
  return answer ? m_atoms.names(answer->numbers()) : std::vector<std::string>();
}

std::vector<std::optional<platform::X11Property>> SelectionClient::askMultiple(
    const std::vector<std::string>& targets) {
  std::vector<std::uint32_t> pairs;
  for (const std::string& target : targets) {
    pairs.push_back(m_atoms.atom(target));
    pairs.push_back(m_atoms.atom("TEST_PLACE_" + std::to_string(pairs.size())));
  }
  const xcb_atom_t property = m_atoms.atom("TEST_ANSWER");
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, property, m_atoms.atom("ATOM_PAIR"), 32,
                      static_cast<std::uint32_t>(pairs.size()), pairs.data());
  std::vector<std::optional<platform::X11Property>> answers;
  if (!convert("CLIPBOARD", "MULTIPLE", property)) return answers;
  const auto answered =
      platform::readProperty(m_connection, m_window, property, sizeLimit, platform::AfterReading::deleteProperty);
  const auto places = answered ? answered->numbers() : std::vector<std::uint32_t>();
  for (std::size_t index = 1; index < places.size(); index += 2) {
    answers.push_back(places[index] != XCB_ATOM_NONE ? take(places[index]) : std::nullopt);
  }
  return answers;
}

bool SelectionClient::takeFirstPieceOnly(std::string_view target) {
  using platform::AfterReading;
  const xcb_atom_t property = m_atoms.atom("TEST_ANSWER");
  if (!convert("CLIPBOARD", target, property)) return false;
  const auto begin = platform::readProperty(m_connection, m_window, property, sizeLimit, AfterReading::deleteProperty);
  return begin && begin->type == m_atoms.atom("INCR") && awaitNewValue(property);
}

xcb_window_t SelectionClient::owner(std::string_view selection) {
  return platform::selectionOwner(m_connection, m_atoms.atom(selection));
}

void SelectionClient::bringToFront(std::string_view instanceName, std::string_view className) {
  std::string names(instanceName);
  names.push_back('\0');
  names += className;
  names.push_back('\0');
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                      static_cast<std::uint32_t>(names.size()), names.data());
  const std::uint32_t process = 4711;
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, m_atoms.atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, 32,
                      1, &process);
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_root, m_atoms.atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW,
                      32, 1, &m_window);
  static_cast<void>(owner("CLIPBOARD"));  // its answer comes when the server has done the rest
}

}  // namespace testsupport
