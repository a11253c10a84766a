#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <vector>

#include "bench/TestKeyboard.h"

namespace bench {

/// What stands in the middle of the screen, where the history opens, as the user's eyes see it: from outside.
class ScreenPixels final {
 public:
  /// The size of the block that is looked at, in pixels.
  ScreenPixels(xcb_connection_t* connection, const xcb_screen_t& screen, std::uint16_t width, std::uint16_t height)
      : m_connection(connection),
        m_root(screen.root),
        m_left(static_cast<std::int16_t>((screen.width_in_pixels - width) / 2)),
        m_top(static_cast<std::int16_t>((screen.height_in_pixels - height) / 2)),
        m_width(width),
        m_height(height) {}

  [[nodiscard]] std::vector<std::uint8_t> now() const {
    const auto cookie =
        xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, m_left, m_top, m_width, m_height, ~0U);
    const Reply<xcb_get_image_reply_t> reply(xcb_get_image_reply(m_connection, cookie, nullptr));
    if (!reply) return {};
    const auto* data = xcb_get_image_data(reply.get());
    return {data, data + xcb_get_image_data_length(reply.get())};
  }

 private:
  xcb_connection_t* m_connection;
  xcb_window_t m_root;
  std::int16_t m_left;
  std::int16_t m_top;
  std::uint16_t m_width;
  std::uint16_t m_height;
};

}  // namespace bench
