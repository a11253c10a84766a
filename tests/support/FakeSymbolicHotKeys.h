#pragma once

#include <optional>
#include <vector>

#include "KeyboardShortcuts/SymbolicHotKeys.h"

namespace testsupport {

/// A desktop whose own chords the test says.
class FakeSymbolicHotKeys final : public keyboardshortcuts::SymbolicHotKeys {
 public:
  [[nodiscard]] std::optional<std::vector<Entry>> copySymbolicHotKeys() const override { return entries; }

  std::optional<std::vector<Entry>> entries = std::vector<Entry>();
};

}  // namespace testsupport
