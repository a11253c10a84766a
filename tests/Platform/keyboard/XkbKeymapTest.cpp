#include "Platform/keyboard/XkbKeymap.h"

#include <gtest/gtest.h>

namespace {

using platform::XkbKeymap;

constexpr std::uint32_t shiftBit = 0x200;
constexpr std::uint32_t optionBit = 0x800;

TEST(XkbKeymap, TellsWhatAKeyTypesInEachOfItsLayouts) {
  const auto keymap = XkbKeymap::compile("us,ru,fr");

  ASSERT_TRUE(keymap);
  EXPECT_EQ(keymap->layoutCount(), 3U);
  EXPECT_EQ(keymap->text(0, 12), "q");
  EXPECT_EQ(keymap->text(1, 12), "\u0439");
  EXPECT_EQ(keymap->text(2, 12), "a");
}

TEST(XkbKeymap, NamesItsLayoutsForTheUser) {
  const auto keymap = XkbKeymap::compile("us,us", ",dvorak");

  ASSERT_TRUE(keymap);
  EXPECT_EQ(keymap->layoutName(0), "English (US)");
  EXPECT_EQ(keymap->layoutName(1), "English (Dvorak)");
  EXPECT_EQ(keymap->layoutName(2), std::nullopt);
}

TEST(XkbKeymap, TypesOneAndTheSameOnAKeyThatAllLayoutsShare) {
  const auto keymap = XkbKeymap::compile("us,ru");

  ASSERT_TRUE(keymap);
  EXPECT_EQ(keymap->text(1, 49), " ");
  EXPECT_EQ(keymap->text(1, 83), "1");
}

TEST(XkbKeymap, TypesDigitsOnTheKeypadWithoutNumLock) {
  const auto keymap = XkbKeymap::compile("us");

  ASSERT_TRUE(keymap);
  EXPECT_EQ(keymap->text(0, 82), "0");
  EXPECT_EQ(keymap->text(0, 92), "9");
  EXPECT_EQ(keymap->text(0, 65), ".");
  EXPECT_EQ(keymap->text(0, 67), "*");
}

TEST(XkbKeymap, TypesThePlainCharacterInALayoutThatShiftsLevelsByNumLock) {
  const auto keymap = XkbKeymap::compile("de", "neo");

  ASSERT_TRUE(keymap);
  EXPECT_EQ(keymap->text(0, 1), "i");
}

TEST(XkbKeymap, ShowsADeadKeyAsItsAccent) {
  const auto german = XkbKeymap::compile("de");
  const auto french = XkbKeymap::compile("fr");

  ASSERT_TRUE(german && french);
  EXPECT_EQ(german->text(0, 50), "^");
  EXPECT_EQ(german->text(0, 24), "\u00B4");
  EXPECT_EQ(french->text(0, 33), "^");
}

TEST(XkbKeymap, TypesWhatTheGivenModifiersMakeOfAKey) {
  const auto keymap = XkbKeymap::compile("de");

  ASSERT_TRUE(keymap);
  EXPECT_EQ(keymap->text(0, 12, shiftBit), "Q");
  EXPECT_EQ(keymap->text(0, 12, optionBit), "@");
  EXPECT_EQ(keymap->text(0, 12, 0x1100), "q");
}

TEST(XkbKeymap, TypesNothingOnAKeyThatDoesSomething) {
  const auto keymap = XkbKeymap::compile("us");

  ASSERT_TRUE(keymap);
  EXPECT_EQ(keymap->text(0, 122), std::nullopt);
  EXPECT_EQ(keymap->text(0, 56), std::nullopt);
}

TEST(XkbKeymap, TypesNothingInALayoutOrOnAKeyThatIsNotThere) {
  const auto keymap = XkbKeymap::compile("us");

  ASSERT_TRUE(keymap);
  EXPECT_EQ(keymap->text(1, 0), std::nullopt);
  EXPECT_EQ(keymap->text(static_cast<std::size_t>(-1), 0), std::nullopt);
  EXPECT_EQ(keymap->text(0, 52), std::nullopt);
  EXPECT_EQ(keymap->text(0, 0xFFFFFFFF), std::nullopt);
}

TEST(XkbKeymap, IsAbsentForALayoutThatTheSystemDoesNotKnow) { EXPECT_FALSE(XkbKeymap::compile("no-such-layout")); }

}  // namespace
