#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

#include "Sauce/InputSourceService.h"

namespace platform {

/// Where each key is on the keyboard, under the layouts that were enabled when this was made. Main thread.
class KeyPlaces final {
 public:
  struct Place {
    /// A virtual key code.
    std::uint32_t code = 0;
    /// What it takes to type the key there: Shift or nothing, as service bits.
    std::uint32_t modifiers = 0;
  };

  explicit KeyPlaces(const sauce::InputSourceService& inputSources);

  /// Where an xkb keysym, or the key above Tab, is. What a layout types comes from the selected one first, then from
  /// the one for Latin letters, then from the others. Absent for a key that no keyboard here has, and for what takes
  /// more than Shift.
  [[nodiscard]] std::optional<Place> placeOf(std::uint32_t keysym) const;

 private:
  void add(const sauce::InputSourceService& inputSources, const sauce::InputSource& source);

  std::unordered_map<std::string, Place> m_typed;
};

}  // namespace platform
