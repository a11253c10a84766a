#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace platform {

/// A chord as a desktop's setting names it.
struct Accelerator {
  /// An xkb keysym, in lower case; 0 for a key that has none.
  std::uint32_t keysym = 0;
  /// Service bits; absent with a modifier that has no such bit, and when the text makes no sense.
  std::optional<std::uint32_t> modifiers;

  bool operator==(const Accelerator&) const = default;
};

/// Stands for the key above Tab, whatever it types.
inline constexpr std::uint32_t keysymAboveTab = 0x1F000000;

/// Each of these is absent where the chord is switched off: by an empty text, "disabled" or "none". Any thread.

/// "<Super><Shift>v"
[[nodiscard]] std::optional<Accelerator> gtkAccelerator(std::string_view text);
/// "Meta+Shift+V"
[[nodiscard]] std::optional<Accelerator> qtAccelerator(std::string_view text);
/// "W-S-v"
[[nodiscard]] std::optional<Accelerator> openboxAccelerator(std::string_view text);

}  // namespace platform
