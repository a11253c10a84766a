#include "Platform/x11/X11Property.h"

#include <algorithm>
#include <cstring>

#include "Platform/x11/X11Reply.h"

namespace platform {

namespace {

constexpr std::uint32_t wordsPerPart = 1U << 20;  // the protocol counts in words of 4 bytes

using Part = X11Reply<xcb_get_property_reply_t>;

Part readPart(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property, std::size_t offset) {
  const auto cookie = xcb_get_property(connection, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY,
                                       static_cast<std::uint32_t>(offset / 4), wordsPerPart);
  return Part(xcb_get_property_reply(connection, cookie, nullptr));
}

std::optional<X11Property> readParts(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property,
                                     std::size_t limit) {
  X11Property value;
  for (;;) {
    const Part part = readPart(connection, window, property, value.bytes.size());
    if (!part || part->type == XCB_ATOM_NONE) return std::nullopt;
    const bool isFirst = value.format == 0;
    if (!isFirst && (part->type != value.type || part->format != value.format)) return std::nullopt;
    value.type = part->type;
    value.format = part->format;
    const auto length = static_cast<std::size_t>(xcb_get_property_value_length(part.get()));
    if (value.bytes.size() + length + part->bytes_after > limit) return std::nullopt;
    if (isFirst) value.bytes.reserve(length + part->bytes_after);
    value.bytes.append(static_cast<const char*>(xcb_get_property_value(part.get())), length);
    if (part->bytes_after == 0) return value;
    if (length == 0) return std::nullopt;
  }
}

}  // namespace

std::vector<std::uint32_t> X11Property::numbers() const {
  std::vector<std::uint32_t> result(format == 32 ? bytes.size() / sizeof(std::uint32_t) : 0);
  if (!result.empty()) std::memcpy(result.data(), bytes.data(), result.size() * sizeof(std::uint32_t));
  return result;
}

std::optional<X11Property> readProperty(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property,
                                        std::size_t limit, AfterReading after) {
  std::optional<X11Property> value = readParts(connection, window, property, std::min(limit, largestProperty));
  if (after == AfterReading::deleteProperty) xcb_delete_property(connection, window, property);
  return value;
}

}  // namespace platform
