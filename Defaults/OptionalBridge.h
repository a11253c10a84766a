#pragma once

#include <optional>
#include <utility>

#include "Defaults/Bridge.h"
#include "Defaults/Object.h"

namespace defaults {

/// The wrapped value's stored form. An empty optional is never stored.
template <typename T>
struct OptionalBridge {
  static std::optional<Object> serialize(const std::optional<T>& value) {
    return value.has_value() ? Bridge<T>::serialize(*value) : std::nullopt;
  }
  static std::optional<std::optional<T>> deserialize(const Object& object) {
    auto value = Bridge<T>::deserialize(object);
    return value.has_value() ? std::optional<std::optional<T>>(std::move(value)) : std::nullopt;
  }
};

template <typename T>
struct Bridge<std::optional<T>> : OptionalBridge<T> {};

}  // namespace defaults
