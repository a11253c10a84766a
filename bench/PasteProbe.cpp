// Measures how long a paste takes as its target sees it: presses the keys given by name (Return, ctrl+v, ctrl+shift+v)
// and prints the milliseconds from the last press to the next change of the window's title, by which the target tells
// that its text has changed.

#include <X11/keysym.h>
#include <poll.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "bench/TestKeyboard.h"

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;
using bench::Reply;

const std::map<std::string, xcb_keysym_t> symbols{
    {"Return", XK_Return}, {"ctrl", XK_Control_L}, {"shift", XK_Shift_L}, {"v", XK_v}};

std::vector<xcb_keysym_t> chordOf(const std::string& name) {
  std::vector<xcb_keysym_t> chord;
  std::istringstream parts(name);
  for (std::string part; std::getline(parts, part, '+');)
    chord.push_back(symbols.at(part));
  return chord;
}

Clock::time_point press(xcb_connection_t* connection, std::vector<xcb_keysym_t> chord) {
  bench::TestKeyboard keyboard(connection);
  for (const xcb_keysym_t symbol : chord)
    keyboard.key(symbol, true);
  keyboard.settle();
  const auto pressed = Clock::now();
  std::ranges::reverse(chord);
  for (const xcb_keysym_t symbol : chord)
    keyboard.key(symbol, false);
  keyboard.settle();
  return pressed;
}

bool waitForTitle(xcb_connection_t* connection, Clock::time_point deadline) {
  while (Clock::now() < deadline) {
    while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(connection)}) {
      if ((event->response_type & 0x7F) != XCB_PROPERTY_NOTIFY) continue;
      if (reinterpret_cast<const xcb_property_notify_event_t&>(*event).atom == XCB_ATOM_WM_NAME) return true;
    }
    pollfd socket{xcb_get_file_descriptor(connection), POLLIN, 0};
    poll(&socket, 1, 100);
  }
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: paste_probe WINDOW KEYS\n";
    return 2;
  }
  xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
  if (xcb_connection_has_error(connection) != 0) throw std::runtime_error("no display");
  const std::uint32_t properties = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_change_window_attributes(connection, static_cast<xcb_window_t>(std::stoul(argv[1])), XCB_CW_EVENT_MASK,
                               &properties);
  const auto begin = press(connection, chordOf(argv[2]));
  const bool isPasted = waitForTitle(connection, begin + 10s);
  const auto end = Clock::now();
  xcb_disconnect(connection);
  if (!isPasted) {
    std::cerr << "nothing was pasted within 10 s\n";
    return 1;
  }
  std::cout << std::chrono::duration<double, std::milli>(end - begin).count() << std::endl;
  return 0;
}
