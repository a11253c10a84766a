#pragma once

#include <optional>
#include <string>

#include "Sauce/Key.h"

namespace sauce {

/// The fixed name of a key that does something instead of typing a character, whatever the layout: "Return", "F1",
/// "LeftArrow". Absent for every other position.
[[nodiscard]] std::optional<std::string> specialKeyName(KeyCode keyCode);

}  // namespace sauce
