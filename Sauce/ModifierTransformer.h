#pragma once

#include <cstdint>

namespace sauce {

/// Converts modifiers between the flags of a key event (command 0x100000, shift 0x20000, option 0x80000, control
/// 0x40000) and the bits of the hot key service (command 0x100, shift 0x200, option 0x800, control 0x1000). What is
/// none of the four is dropped. Any thread.
class ModifierTransformer final {
 public:
  [[nodiscard]] static std::uint32_t serviceBits(std::uint32_t eventFlags);
  [[nodiscard]] static std::uint32_t eventFlags(std::uint32_t serviceBits);
};

}  // namespace sauce
