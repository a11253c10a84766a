#pragma once

#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>
#include <xcb/xtest.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace bench {

template <typename T>
struct Free {
  void operator()(T* pointer) const { std::free(pointer); }
};
template <typename T>
using Reply = std::unique_ptr<T, Free<T>>;

/// The hands of a user on the display's keyboard.
class TestKeyboard final {
 public:
  explicit TestKeyboard(xcb_connection_t* connection)
      : m_connection(connection), m_symbols(xcb_key_symbols_alloc(connection), &xcb_key_symbols_free) {}

  void key(xcb_keysym_t symbol, bool isDown) {
    const Reply<xcb_keycode_t> codes(xcb_key_symbols_get_keycode(m_symbols.get(), symbol));
    if (!codes) throw std::runtime_error("the keyboard has no such key");
    xcb_test_fake_input(m_connection, isDown ? XCB_KEY_PRESS : XCB_KEY_RELEASE, *codes, XCB_CURRENT_TIME, XCB_NONE, 0,
                        0, 0);
  }
  /// Returns when the server has done everything.
  void settle() {
    const Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
  }

 private:
  xcb_connection_t* m_connection;
  std::unique_ptr<xcb_key_symbols_t, decltype(&xcb_key_symbols_free)> m_symbols;
};

}  // namespace bench
