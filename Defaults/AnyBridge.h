#pragma once

#include <optional>

#include "Defaults/Bridge.h"
#include "Defaults/Object.h"

namespace defaults {

/// A value of any kind, undeclared: whatever its own kind stores.
struct AnyBridge {
  static std::optional<Object> serialize(const Object& value) { return value; }
  static std::optional<Object> deserialize(const Object& object) { return object; }
};

template <>
struct Bridge<Object> : AnyBridge {};

}  // namespace defaults
