#pragma once

#include <optional>
#include <string>

#include "Defaults/Bridge.h"
#include "Defaults/Object.h"

namespace quillmonger {

/// Where long row text is cut.
enum class TruncationMode { head, middle, tail };

}  // namespace quillmonger

/// Stored as "head", "middle" or "tail"; any other string reads as `tail`.
template <>
struct defaults::Bridge<quillmonger::TruncationMode> {
  static std::optional<Object> serialize(quillmonger::TruncationMode value);
  static std::optional<quillmonger::TruncationMode> deserialize(const Object& object);
};
