#include "Platform/x11/XSettings.h"

#include <algorithm>
#include <cstddef>

namespace platform {

namespace {

enum Kind : std::uint32_t { number, text, color };

// Takes one piece after the other from the front; what is not there any more is absent.
class Reader final {
 public:
  explicit Reader(std::string_view bytes) : m_rest(bytes) {}

  void setLeastSignificantFirst(bool isSo) { m_isLeastSignificantFirst = isSo; }

  std::optional<std::string_view> bytes(std::size_t count) {
    if (count > m_rest.size()) return std::nullopt;
    const std::string_view taken = m_rest.substr(0, count);
    m_rest.remove_prefix(count);
    return taken;
  }

  std::optional<std::uint32_t> unsignedNumber(std::size_t width) {
    const auto digits = bytes(width);
    if (!digits) return std::nullopt;
    std::uint32_t value = 0;
    for (std::size_t place = 0; place < width; ++place) {
      const char digit = (*digits)[m_isLeastSignificantFirst ? width - 1 - place : place];
      value = value << 8 | static_cast<std::uint8_t>(digit);
    }
    return value;
  }

  // A text and what fills it up to a multiple of four.
  std::optional<std::string_view> paddedText(std::size_t length) {
    const auto taken = bytes(length);
    m_rest.remove_prefix(std::min(m_rest.size(), (4 - length % 4) % 4));
    return taken;
  }

 private:
  std::string_view m_rest;
  bool m_isLeastSignificantFirst = true;
};

bool skipValue(Reader& reader, std::uint32_t kind) {
  if (kind == number) return reader.bytes(4).has_value();
  if (kind == color) return reader.bytes(8).has_value();
  const auto length = kind == text ? reader.unsignedNumber(4) : std::nullopt;
  return length && reader.paddedText(*length);
}

}  // namespace

std::optional<std::int32_t> xSettingsNumber(std::string_view settings, std::string_view name, std::uint32_t limit) {
  Reader reader(settings);
  const auto order = reader.unsignedNumber(1);
  reader.setLeastSignificantFirst(order == 0U);
  const bool isWhole = reader.bytes(3) && reader.bytes(4);
  const auto count = isWhole ? reader.unsignedNumber(4) : std::nullopt;
  for (std::uint32_t left = std::min(count.value_or(0), limit); left > 0; --left) {
    const auto kind = reader.unsignedNumber(1);
    if (!reader.bytes(1)) return std::nullopt;
    const auto length = reader.unsignedNumber(2);
    const auto present = length ? reader.paddedText(*length) : std::nullopt;
    if (!present || !reader.bytes(4)) return std::nullopt;
    if (*present == name) {
      const auto value = kind == std::uint32_t{number} ? reader.unsignedNumber(4) : std::nullopt;
      return value ? std::optional(static_cast<std::int32_t>(*value)) : std::nullopt;
    }
    if (!skipValue(reader, *kind)) return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace platform
