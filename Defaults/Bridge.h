#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Defaults/Object.h"

namespace defaults {

template <typename T>
concept Native = std::same_as<T, bool> || std::same_as<T, std::int64_t> || std::same_as<T, float> ||
    std::same_as<T, double> || std::same_as<T, std::string> || std::same_as<T, std::vector<std::string>>;

/// How a value type is stored: `serialize` gives its stored form, `deserialize` its value, and each gives nothing when
/// it can't. A type of the program's own specializes it. Any thread.
template <typename T>
struct Bridge;

template <Native T>
struct Bridge<T> {
  static std::optional<Object> serialize(const T& value) { return Object(std::in_place_type<T>, value); }
  static std::optional<T> deserialize(const Object& object) {
    const T* value = std::get_if<T>(&object);
    return value == nullptr ? std::nullopt : std::optional<T>(*value);
  }
};

/// The wrapped value's stored form. An empty optional is never stored.
template <typename T>
struct Bridge<std::optional<T>> {
  static std::optional<Object> serialize(const std::optional<T>& value) {
    return value.has_value() ? Bridge<T>::serialize(*value) : std::nullopt;
  }
  static std::optional<std::optional<T>> deserialize(const Object& object) {
    auto value = Bridge<T>::deserialize(object);
    return value.has_value() ? std::optional<std::optional<T>>(std::move(value)) : std::nullopt;
  }
};

}  // namespace defaults
