#pragma once

#include <optional>

#include "Defaults/Bridge.h"

namespace quillmonger {

/// The appearance of every window, where the user forces one.
enum class ColorScheme { light, dark };

}  // namespace quillmonger

/// Stored as 1 (light) or 2 (dark); 0 and any other integer stand for no forced scheme.
template <>
struct defaults::Bridge<quillmonger::ColorScheme> {
  static std::optional<Object> serialize(quillmonger::ColorScheme value);
  static std::optional<quillmonger::ColorScheme> deserialize(const Object& object);
};
