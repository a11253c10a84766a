#pragma once

#include <optional>

#include "Foundation/Published.h"
#include "Quillmonger/settings/ColorScheme.h"

namespace quillmonger {

/// What the user has told the desktop about how every program should look. It is followed as it changes; until the
/// desktop has answered, it has said nothing. Main thread.
class DesktopPreferences {
 public:
  DesktopPreferences() = default;
  DesktopPreferences(const DesktopPreferences&) = delete;
  DesktopPreferences& operator=(const DesktopPreferences&) = delete;
  virtual ~DesktopPreferences() = default;

  /// Absent where the desktop has no preference, or says nothing.
  [[nodiscard]] virtual foundation::Published<std::optional<ColorScheme>>& colorScheme() = 0;
  /// Whether things should come and go without motion. False where the desktop says nothing.
  [[nodiscard]] virtual foundation::Published<bool>& reducesMotion() = 0;
};

}  // namespace quillmonger
