// Measures how long the history window takes to be mapped and to be painted, as the user's eyes would: from outside, by
// the pixels of the screen. It runs the words given to it as a command, presses the global chord (--chord), or types a
// letter or digit into the window that is there (--key), and prints the milliseconds from there to the window's map and
// to the first changed pixel in the middle of the screen.

#include <X11/keysym.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "bench/ScreenPixels.h"
#include "bench/TestKeyboard.h"

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;
using bench::Reply;

double milliseconds(Clock::duration time) { return std::chrono::duration<double, std::milli>(time).count(); }

class Probe final {
 public:
  Probe() : m_connection(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(m_connection) != 0) throw std::runtime_error("no display");
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, m_screen->root, XCB_CW_EVENT_MASK, &mask);
  }
  Probe(const Probe&) = delete;
  Probe& operator=(const Probe&) = delete;
  ~Probe() { xcb_disconnect(m_connection); }

  std::vector<std::uint8_t> pixels() {
    // Wide enough for a row's words: a smaller piece can look the same before and after.
    constexpr std::uint16_t width = 400;
    constexpr std::uint16_t height = 48;
    return bench::ScreenPixels(m_connection, *m_screen, width, height).now();
  }

  bool sawMap() {
    bool seen = false;
    while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
      seen = seen || (event->response_type & 0x7F) == XCB_MAP_NOTIFY;
    }
    return seen;
  }

  // Types the key of a letter or digit and returns the moment of its press.
  Clock::time_point type(char letter) {
    bench::TestKeyboard keyboard(m_connection);
    const auto pressed = Clock::now();
    keyboard.key(static_cast<xcb_keysym_t>(letter), true);
    keyboard.key(static_cast<xcb_keysym_t>(letter), false);
    xcb_flush(m_connection);
    return pressed;
  }

  // Presses Shift+Super+V and returns the moment of V's release.
  Clock::time_point pressChord() {
    bench::TestKeyboard keyboard(m_connection);
    keyboard.key(XK_Super_L, true);
    keyboard.key(XK_Shift_L, true);
    keyboard.key(XK_v, true);
    keyboard.key(XK_v, false);
    keyboard.settle();
    const auto released = Clock::now();
    keyboard.key(XK_Shift_L, false);
    keyboard.key(XK_Super_L, false);
    xcb_flush(m_connection);
    return released;
  }

 private:
  xcb_connection_t* m_connection;
  xcb_screen_t* m_screen = nullptr;
};

pid_t start(char** command) {
  const pid_t child = fork();
  if (child == 0) {
    execvp(command[0], command);
    _exit(127);
  }
  return child;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: paint_probe --chord | --key LETTER | COMMAND...\n";
    return 2;
  }
  Probe probe;
  const auto before = probe.pixels();
  probe.sawMap();
  const std::string what = argv[1];
  auto begin = Clock::now();
  if (what == "--chord") {
    begin = probe.pressChord();
  } else if (what == "--key" && argc == 3) {
    begin = probe.type(argv[2][0]);
  } else {
    start(argv + 1);
  }
  std::optional<double> mapped;
  while (Clock::now() - begin < 10s) {
    if (!mapped && probe.sawMap()) mapped = milliseconds(Clock::now() - begin);
    if (probe.pixels() != before) {
      std::cout << mapped.value_or(-1) << " " << milliseconds(Clock::now() - begin) << std::endl;
      return 0;
    }
    poll(nullptr, 0, 1);
  }
  std::cerr << "nothing was painted within 10 s\n";
  return 1;
}
