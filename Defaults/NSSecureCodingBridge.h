#pragma once

#include <concepts>
#include <optional>

#include "Defaults/Object.h"

namespace defaults {

/// A type that writes itself as bytes, and makes itself from bytes that it checks: they may come from anyone.
template <typename T>
concept NSSecureCoding = requires(const T& value, const Bytes& bytes) {
  { value.archived() } -> std::same_as<Bytes>;
  { T::unarchived(bytes) } -> std::same_as<std::optional<T>>;
};

/// The bytes of the archived object.
template <NSSecureCoding T>
struct NSSecureCodingBridge {
  static std::optional<Object> serialize(const T& value) { return Object(value.archived()); }
  static std::optional<T> deserialize(const Object& object) {
    const auto* bytes = object.as<Bytes>();
    return bytes == nullptr ? std::nullopt : T::unarchived(*bytes);
  }
};

}  // namespace defaults
