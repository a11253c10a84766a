#pragma once

#include <optional>
#include <string>

#include "Defaults/Bridge.h"
#include "Defaults/Object.h"
#include "Foundation/Url.h"

namespace defaults {

/// The absolute string.
struct URLBridge {
  static std::optional<Object> serialize(const foundation::Url& url) { return Object(url.absoluteString()); }
  static std::optional<foundation::Url> deserialize(const Object& object) {
    const auto* text = object.as<std::string>();
    return text == nullptr ? std::nullopt : foundation::Url::parse(*text);
  }
};

template <>
struct Bridge<foundation::Url> : URLBridge {};

}  // namespace defaults
