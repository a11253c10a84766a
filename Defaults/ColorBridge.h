#pragma once

#include <array>
#include <concepts>
#include <optional>

#include "Defaults/Object.h"

namespace defaults {

/// A colour of red, green, blue and opacity, each from 0 to 1.
template <typename T>
concept RGBAColor = requires(const T& color, double component) {
  { color.red } -> std::convertible_to<double>;
  { color.green } -> std::convertible_to<double>;
  { color.blue } -> std::convertible_to<double>;
  { color.alpha } -> std::convertible_to<double>;
  T{component, component, component, component};
};

/// The bytes of a colour: "RGBA" and the four components as doubles, lowest byte first. Absent for a component outside
/// 0 to 1.
[[nodiscard]] std::optional<Bytes> archivedColor(const std::array<double, 4>& components);
/// Absent for anything but such bytes.
[[nodiscard]] std::optional<std::array<double, 4>> unarchivedColor(const Bytes& bytes);

/// The bytes of the archived colour.
template <RGBAColor T>
struct ColorBridge {
  static std::optional<Object> serialize(const T& color) {
    auto bytes = archivedColor({color.red, color.green, color.blue, color.alpha});
    return bytes.has_value() ? std::optional<Object>(*std::move(bytes)) : std::nullopt;
  }
  static std::optional<T> deserialize(const Object& object) {
    const auto* bytes = object.as<Bytes>();
    const auto components = bytes == nullptr ? std::nullopt : unarchivedColor(*bytes);
    if (!components.has_value()) return std::nullopt;
    const auto [red, green, blue, alpha] = *components;
    return T{red, green, blue, alpha};
  }
};

}  // namespace defaults
