#include "Platform/desktopshortcuts/KeyPlaces.h"

#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include <ostream>
#include <utility>

#include "Platform/desktopshortcuts/Accelerator.h"
#include "tests/Platform/desktopshortcuts/XkbInputSourceService.h"

namespace {

using testsupport::XkbInputSourceService;
using CodeAndModifiers = std::optional<std::pair<std::uint32_t, std::uint32_t>>;

constexpr std::uint32_t shift = 0x200;

CodeAndModifiers placeOf(std::uint32_t keysym, const std::string& layouts, std::size_t selected = 0) {
  const auto place = platform::KeyPlaces(XkbInputSourceService(layouts, selected)).placeOf(keysym);
  return place ? CodeAndModifiers({place->code, place->modifiers}) : std::nullopt;
}

CodeAndModifiers at(std::uint32_t code, std::uint32_t modifiers = 0) { return std::pair(code, modifiers); }

TEST(KeyPlaces, AreWhereTheLayoutTypesTheKey) {
  EXPECT_EQ(placeOf(XKB_KEY_z, "us"), at(6));
  EXPECT_EQ(placeOf(XKB_KEY_z, "de"), at(16));
  EXPECT_EQ(placeOf(XKB_KEY_odiaeresis, "de"), at(41));
  EXPECT_EQ(placeOf(XKB_KEY_space, "us"), at(49));
}

TEST(KeyPlaces, SayWhetherTheKeyTakesShift) {
  EXPECT_EQ(placeOf(XKB_KEY_slash, "us"), at(44));
  EXPECT_EQ(placeOf(XKB_KEY_slash, "de"), at(26, shift));
  EXPECT_EQ(placeOf(XKB_KEY_1, "fr"), at(18, shift));
}

TEST(KeyPlaces, LackAKeyThatTakesMoreThanShift) {
  EXPECT_EQ(placeOf(XKB_KEY_at, "de"), std::nullopt);
  EXPECT_EQ(placeOf(XKB_KEY_EuroSign, "de"), std::nullopt);
}

TEST(KeyPlaces, FindADeadKey) { EXPECT_EQ(placeOf(XKB_KEY_dead_circumflex, "de"), at(50)); }

TEST(KeyPlaces, PreferTheSelectedLayoutToTheLatinOneAndThatToTheOthers) {
  EXPECT_EQ(placeOf(XKB_KEY_z, "us,de", 1), at(16));
  EXPECT_EQ(placeOf(XKB_KEY_v, "ru,us", 0), at(9));
  EXPECT_EQ(placeOf(XKB_KEY_Cyrillic_em, "ru,us", 0), at(9));
  EXPECT_EQ(placeOf(XKB_KEY_Cyrillic_em, "us,ru", 0), at(9));
}

TEST(KeyPlaces, FindLatinLettersWhereNoLayoutHasThem) { EXPECT_EQ(placeOf(XKB_KEY_v, "ru"), at(9)); }

TEST(KeyPlaces, KnowTheKeysThatTypeNothing) {
  EXPECT_EQ(placeOf(XKB_KEY_Escape, "us"), at(53));
  EXPECT_EQ(placeOf(XKB_KEY_F1, "us"), at(122));
  EXPECT_EQ(placeOf(XKB_KEY_Page_Down, "us"), at(121));
  EXPECT_EQ(placeOf(XKB_KEY_Tab, "us"), at(48));
  EXPECT_EQ(placeOf(XKB_KEY_ISO_Left_Tab, "us"), at(48, shift));
  EXPECT_EQ(placeOf(platform::keysymAboveTab, "de"), at(50));
}

TEST(KeyPlaces, KeepTheDigitsOfTheKeypadApart) {
  EXPECT_EQ(placeOf(XKB_KEY_1, "us"), at(18));
  EXPECT_EQ(placeOf(XKB_KEY_KP_1, "us"), at(83));
  EXPECT_EQ(placeOf(XKB_KEY_KP_End, "us"), at(83));
}

TEST(KeyPlaces, LackAKeyThatNoKeyboardHereHas) {
  EXPECT_EQ(placeOf(XKB_KEY_XF86AudioPlay, "us"), std::nullopt);
  EXPECT_EQ(placeOf(XKB_KEY_Cyrillic_em, "us"), std::nullopt);
  EXPECT_EQ(placeOf(XKB_KEY_NoSymbol, "us"), std::nullopt);
  EXPECT_EQ(placeOf(0xFFFFFFFF, "us"), std::nullopt);
}

}  // namespace
