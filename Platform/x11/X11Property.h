#pragma once

#include <xcb/xcb.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

/// The value of a window's property, as another program may have left it there: nothing about it is certain.
struct X11Property {
  xcb_atom_t type = XCB_ATOM_NONE;
  /// Bits of one unit: 8, 16 or 32.
  std::uint8_t format = 0;
  std::string bytes;

  /// The value as numbers of 32 bits; empty for another format.
  [[nodiscard]] std::vector<std::uint32_t> numbers() const;
};

/// No program puts more into one property: a request of the protocol is smaller, and what is larger comes in parts.
inline constexpr std::size_t largestProperty = std::size_t{64} << 20;

enum class AfterReading { keepProperty, deleteProperty };

/// Reads a property, and deletes it if so told, whatever became of the reading. Absent when it is missing, larger than
/// `limit` bytes, or changes while it is read. Waits for the server.
[[nodiscard]] std::optional<X11Property> readProperty(xcb_connection_t* connection, xcb_window_t window,
                                                      xcb_atom_t property, std::size_t limit, AfterReading after);

}  // namespace platform
