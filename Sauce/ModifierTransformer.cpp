#include "Sauce/ModifierTransformer.h"

#include <array>

namespace sauce {

namespace {

struct Modifier {
  std::uint32_t eventFlag;
  std::uint32_t serviceBit;
};

// Command, shift, option and control.
constexpr auto modifiers =
    std::to_array<Modifier>({{0x100000, 0x100}, {0x20000, 0x200}, {0x80000, 0x800}, {0x40000, 0x1000}});

}  // namespace

std::uint32_t ModifierTransformer::serviceBits(std::uint32_t eventFlags) {
  std::uint32_t bits = 0;
  for (const auto& [flag, bit] : modifiers) {
    if ((eventFlags & flag) != 0) bits |= bit;
  }
  return bits;
}

std::uint32_t ModifierTransformer::eventFlags(std::uint32_t serviceBits) {
  std::uint32_t flags = 0;
  for (const auto& [flag, bit] : modifiers) {
    if ((serviceBits & bit) != 0) flags |= flag;
  }
  return flags;
}

}  // namespace sauce
