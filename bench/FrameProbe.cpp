// Scrolls the history window, which must be open, by the wheel or by the Down key, 60 times a second, and prints the
// milliseconds between one changed picture in the middle of the screen and the next.

#include <X11/keysym.h>
#include <poll.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string>

#include "bench/ScreenPixels.h"
#include "bench/TestKeyboard.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::microseconds frame(16'667);
// Until then the first rows, which don't scroll yet, have been passed.
constexpr int warmUp = 30;

class Probe final {
 public:
  explicit Probe(bool usesWheel)
      : m_usesWheel(usesWheel),
        m_connection(xcb_connect(nullptr, nullptr)),
        m_screen(*xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data),
        m_keyboard(m_connection),
        m_pixels(m_connection, m_screen, 200, 24) {}
  Probe(const Probe&) = delete;
  Probe& operator=(const Probe&) = delete;
  ~Probe() { xcb_disconnect(m_connection); }

  // Whether anything changed.
  bool measure(std::chrono::seconds duration) {
    pointAtMiddle();
    auto before = m_pixels.now();
    auto lastChange = Clock::now();
    auto nextStep = lastChange;
    int steps = 0;
    bool hasChanged = false;
    for (const auto end = nextStep + warmUp * frame + duration; Clock::now() < end;) {
      if (Clock::now() >= nextStep) {
        step();
        ++steps;
        nextStep += frame;
      }
      auto present = m_pixels.now();
      if (present != before) {
        const auto now = Clock::now();
        if (steps > warmUp) {
          std::cout << std::chrono::duration<double, std::milli>(now - lastChange).count() << "\n";
          hasChanged = true;
        }
        lastChange = now;
        before = std::move(present);
      }
      poll(nullptr, 0, 1);
    }
    return hasChanged;
  }

 private:
  void pointAtMiddle() {
    xcb_test_fake_input(m_connection, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, m_screen.root,
                        static_cast<std::int16_t>(m_screen.width_in_pixels / 2),
                        static_cast<std::int16_t>(m_screen.height_in_pixels / 2), 0);
    m_keyboard.settle();
  }

  void step() {
    constexpr std::uint8_t wheelDown = 5;
    if (m_usesWheel) {
      for (const auto type : {std::uint8_t{XCB_BUTTON_PRESS}, std::uint8_t{XCB_BUTTON_RELEASE}})
        xcb_test_fake_input(m_connection, type, wheelDown, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    } else {
      m_keyboard.key(XK_Down, true);
      m_keyboard.key(XK_Down, false);
    }
    xcb_flush(m_connection);
  }

  bool m_usesWheel;
  xcb_connection_t* m_connection;
  xcb_screen_t m_screen;
  bench::TestKeyboard m_keyboard;
  bench::ScreenPixels m_pixels;
};

}  // namespace

int main(int argc, char** argv) {
  const std::string how = argc == 3 ? argv[1] : "";
  if (how != "wheel" && how != "keys") {
    std::cerr << "usage: frame_probe wheel|keys SECONDS\n";
    return 2;
  }
  if (Probe(how == "wheel").measure(std::chrono::seconds(std::atoi(argv[2])))) return 0;
  std::cerr << "nothing moved\n";
  return 1;
}
