#include "Sauce/ModifierTransformer.h"

#include <gtest/gtest.h>

namespace {

using sauce::ModifierTransformer;

TEST(ModifierTransformer, ConvertsEachEventFlagToItsServiceBit) {
  EXPECT_EQ(ModifierTransformer::serviceBits(0x100000), 0x100U);
  EXPECT_EQ(ModifierTransformer::serviceBits(0x20000), 0x200U);
  EXPECT_EQ(ModifierTransformer::serviceBits(0x80000), 0x800U);
  EXPECT_EQ(ModifierTransformer::serviceBits(0x40000), 0x1000U);
}

TEST(ModifierTransformer, ComesBackFromEachSetOfServiceBits) {
  for (std::uint32_t set = 0; set < 16; ++set) {
    const std::uint32_t bits = (set & 3U) << 8 | (set & 4U) << 9 | (set & 8U) << 9;
    EXPECT_EQ(ModifierTransformer::serviceBits(ModifierTransformer::eventFlags(bits)), bits);
  }
}

TEST(ModifierTransformer, DropsWhatIsNoneOfTheFour) {
  EXPECT_EQ(ModifierTransformer::serviceBits(0x810008), 0U);
  EXPECT_EQ(ModifierTransformer::eventFlags(0xFFFFE4FF), 0U);
  EXPECT_EQ(ModifierTransformer::serviceBits(0xFFFFFFFF), 0x1B00U);
  EXPECT_EQ(ModifierTransformer::eventFlags(0xFFFFFFFF), 0x1E0000U);
}

}  // namespace
