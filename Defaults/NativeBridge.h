#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "Defaults/Bridge.h"
#include "Defaults/Object.h"

namespace defaults {

template <typename T>
concept Native = std::same_as<T, bool> || std::same_as<T, std::int64_t> || std::same_as<T, float> ||
    std::same_as<T, double> || std::same_as<T, std::string> || std::same_as<T, foundation::Date>;

template <typename T>
concept OtherInteger = std::integral<T> && !Native<T> && requires(T value) {
  std::in_range<std::int64_t>(value);
};

/// A kind of `Object` is stored as itself.
template <typename T>
struct NativeBridge {
  static std::optional<Object> serialize(const T& value) { return Object(value); }
  static std::optional<T> deserialize(const Object& object) {
    const T* value = object.as<T>();
    return value == nullptr ? std::nullopt : std::optional<T>(*value);
  }
};

/// An integer of another width is stored as an integer, if it is one of 64 bits with a sign.
template <typename T>
struct IntegerBridge {
  static std::optional<Object> serialize(T value) {
    if (!std::in_range<std::int64_t>(value)) return std::nullopt;
    return Object(static_cast<std::int64_t>(value));
  }
  static std::optional<T> deserialize(const Object& object) {
    const auto* value = object.as<std::int64_t>();
    if (value == nullptr || !std::in_range<T>(*value)) return std::nullopt;
    return static_cast<T>(*value);
  }
};

template <Native T>
struct Bridge<T> : NativeBridge<T> {};

template <>
struct Bridge<Bytes> : NativeBridge<Bytes> {};

template <OtherInteger T>
struct Bridge<T> : IntegerBridge<T> {};

}  // namespace defaults
