#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "KeyboardShortcuts/HotKeyService.h"
#include "KeyboardShortcuts/Shortcut.h"

namespace keyboardshortcuts {

/// A chord that is to work everywhere, and what it does.
struct HotKey {
  using Action = std::function<void(const Shortcut&)>;

  Shortcut shortcut;
  std::int32_t carbonHotKeyId = 0;
  /// Its place with the service; empty while it is not registered there.
  std::optional<HotKeyIdentifier> carbonHotKey;
  Action onKeyDown;
  Action onKeyUp;
};

}  // namespace keyboardshortcuts
