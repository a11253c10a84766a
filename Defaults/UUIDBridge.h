#pragma once

#include <optional>
#include <string>

#include "Defaults/Bridge.h"
#include "Defaults/Object.h"
#include "Foundation/Uuid.h"

namespace defaults {

/// The string form, in upper case; either case is read.
struct UUIDBridge {
  static std::optional<Object> serialize(const foundation::Uuid& uuid) { return Object(uuid.toString()); }
  static std::optional<foundation::Uuid> deserialize(const Object& object) {
    const auto* text = object.as<std::string>();
    return text == nullptr ? std::nullopt : foundation::Uuid::parse(*text);
  }
};

template <>
struct Bridge<foundation::Uuid> : UUIDBridge {};

}  // namespace defaults
