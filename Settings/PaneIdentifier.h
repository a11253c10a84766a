#pragma once

#include <string>

namespace settings {

/// What a pane is asked for by. A value.
struct PaneIdentifier {
  std::string rawValue;

  bool operator==(const PaneIdentifier&) const = default;
};

}  // namespace settings
