#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "KeyboardShortcuts/Shortcut.h"

namespace keyboardshortcuts {

/// The chords that the desktop itself reacts to. Main thread.
class SymbolicHotKeys {
 public:
  struct Entry {
    bool isEnabled = false;
    /// Virtual key code and service bits; absent where the desktop's setting can't be read.
    std::optional<std::int64_t> code;
    std::optional<std::int64_t> modifiers;
  };

  SymbolicHotKeys() = default;
  SymbolicHotKeys(const SymbolicHotKeys&) = delete;
  SymbolicHotKeys& operator=(const SymbolicHotKeys&) = delete;
  virtual ~SymbolicHotKeys() = default;

  /// Absent when they can't be had.
  [[nodiscard]] virtual std::optional<std::vector<Entry>> copySymbolicHotKeys() const = 0;
};

/// Whether one of the desktop's own chords that are switched on is this one.
[[nodiscard]] bool isTakenBySystem(const Shortcut& shortcut, const SymbolicHotKeys& symbolicHotKeys);

}  // namespace keyboardshortcuts
