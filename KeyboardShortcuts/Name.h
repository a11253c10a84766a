#pragma once

#include <optional>
#include <string>

#include "KeyboardShortcuts/Shortcut.h"

namespace keyboardshortcuts {

/// What a chord is for. Two names are the same when their raw values are.
struct Name {
  std::string rawValue;
  std::optional<Shortcut> defaultShortcut;
};

}  // namespace keyboardshortcuts
