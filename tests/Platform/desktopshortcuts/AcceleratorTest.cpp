#include "Platform/desktopshortcuts/Accelerator.h"

#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include <string>

namespace {

using platform::Accelerator;
using platform::gtkAccelerator;
using platform::openboxAccelerator;
using platform::qtAccelerator;

constexpr std::uint32_t command = 0x100;
constexpr std::uint32_t shift = 0x200;
constexpr std::uint32_t option = 0x800;
constexpr std::uint32_t control = 0x1000;
const Accelerator unreadable;

TEST(GtkAccelerator, NamesModifiersAndAKeysym) {
  EXPECT_EQ(gtkAccelerator("<Super><Shift>v"), (Accelerator{XKB_KEY_v, command | shift}));
  EXPECT_EQ(gtkAccelerator("<Primary><Alt>t"), (Accelerator{XKB_KEY_t, control | option}));
  EXPECT_EQ(gtkAccelerator("<ctrl><MOD1><Mod4>Page_Down"),
            (Accelerator{XKB_KEY_Page_Down, control | option | command}));
  EXPECT_EQ(gtkAccelerator("F12"), (Accelerator{XKB_KEY_F12, 0U}));
}

TEST(GtkAccelerator, HasItsKeyInLowerCase) {
  EXPECT_EQ(gtkAccelerator("<Super>V"), (Accelerator{XKB_KEY_v, command}));
  EXPECT_EQ(gtkAccelerator("<Super>Odiaeresis"), (Accelerator{XKB_KEY_odiaeresis, command}));
}

TEST(GtkAccelerator, KnowsTheKeyAboveTab) {
  EXPECT_EQ(gtkAccelerator("<Super>Above_Tab"), (Accelerator{platform::keysymAboveTab, command}));
}

TEST(GtkAccelerator, IsAbsentWhereTheChordIsSwitchedOff) {
  for (const auto* text : {"", "disabled", "none"})
    EXPECT_EQ(gtkAccelerator(text), std::nullopt) << text;
}

TEST(GtkAccelerator, HasNoKeyWhereItsNameIsUnknown) {
  for (const auto* text : {"<Super>NoSuchKey", "<Super>", "<Super>0x2f"})
    EXPECT_EQ(gtkAccelerator(text), (Accelerator{XKB_KEY_NoSymbol, command})) << text;
}

TEST(GtkAccelerator, HasNoModifiersWhereOneIsUnknown) {
  for (const auto* text : {"<Hyper>v", "<>v", "<Super><NoSuchModifier>v", "<Meta><Super>v"})
    EXPECT_EQ(gtkAccelerator(text), (Accelerator{XKB_KEY_v, std::nullopt})) << text;
}

TEST(GtkAccelerator, MakesNoSenseOfWhatIsNone) {
  EXPECT_EQ(gtkAccelerator("<Super"), unreadable);
  EXPECT_EQ(gtkAccelerator("<Super>" + std::string(10'000'000, 'v')), unreadable);
  EXPECT_EQ(gtkAccelerator("\xFF\xFE<>")->keysym, XKB_KEY_NoSymbol);
}

TEST(QtAccelerator, NamesModifiersAndAKey) {
  EXPECT_EQ(qtAccelerator("Meta+Shift+V"), (Accelerator{XKB_KEY_v, command | shift}));
  EXPECT_EQ(qtAccelerator("Ctrl+Alt+Del"), (Accelerator{XKB_KEY_Delete, control | option}));
  EXPECT_EQ(qtAccelerator("Meta+Esc"), (Accelerator{XKB_KEY_Escape, command}));
  EXPECT_EQ(qtAccelerator("Meta+PgUp"), (Accelerator{XKB_KEY_Page_Up, command}));
  EXPECT_EQ(qtAccelerator("Meta+Space"), (Accelerator{XKB_KEY_space, command}));
  EXPECT_EQ(qtAccelerator("Shift+Backtab"), (Accelerator{XKB_KEY_ISO_Left_Tab, shift}));
}

TEST(QtAccelerator, CanHaveAPlusSignForItsKey) {
  EXPECT_EQ(qtAccelerator("Meta++"), (Accelerator{XKB_KEY_plus, command}));
  EXPECT_EQ(qtAccelerator("+"), (Accelerator{XKB_KEY_plus, 0U}));
}

TEST(QtAccelerator, CanHaveALetterOfAnyScriptForItsKey) {
  EXPECT_EQ(qtAccelerator("Meta+Ä"), (Accelerator{XKB_KEY_adiaeresis, command}));
  EXPECT_EQ(qtAccelerator("Meta+М"), (Accelerator{XKB_KEY_Cyrillic_em, command}));
}

TEST(QtAccelerator, TakesADigitOfTheKeypad) {
  EXPECT_EQ(qtAccelerator("Meta+Num+1"), (Accelerator{XKB_KEY_KP_1, command}));
}

TEST(QtAccelerator, IsAbsentWhereTheChordIsSwitchedOff) {
  EXPECT_EQ(qtAccelerator("none"), std::nullopt);
  EXPECT_EQ(qtAccelerator(""), std::nullopt);
}

TEST(QtAccelerator, MakesNoSenseOfWhatIsNone) {
  EXPECT_EQ(qtAccelerator("Meta+"), (Accelerator{XKB_KEY_NoSymbol, command}));
  EXPECT_EQ(qtAccelerator("Meta+Volume Up"), (Accelerator{XKB_KEY_NoSymbol, command}));
  EXPECT_EQ(qtAccelerator("Hyper+V"), (Accelerator{XKB_KEY_v, std::nullopt}));
  EXPECT_EQ(qtAccelerator("Meta+\xC3"), (Accelerator{XKB_KEY_NoSymbol, command}));
  EXPECT_EQ(qtAccelerator("\xFF+V")->modifiers, std::nullopt);
  EXPECT_EQ(qtAccelerator(std::string(10'000'000, '+')), unreadable);
}

TEST(OpenboxAccelerator, NamesModifiersAndAKeysym) {
  EXPECT_EQ(openboxAccelerator("W-S-v"), (Accelerator{XKB_KEY_v, command | shift}));
  EXPECT_EQ(openboxAccelerator("C-A-Left"), (Accelerator{XKB_KEY_Left, control | option}));
  EXPECT_EQ(openboxAccelerator("Print"), (Accelerator{XKB_KEY_Print, 0U}));
}

TEST(OpenboxAccelerator, IsAbsentWhereTheChordIsSwitchedOff) { EXPECT_EQ(openboxAccelerator(""), std::nullopt); }

TEST(OpenboxAccelerator, MakesNoSenseOfWhatIsNone) {
  EXPECT_EQ(openboxAccelerator("H-v"), (Accelerator{XKB_KEY_v, std::nullopt}));
  EXPECT_EQ(openboxAccelerator("W--"), (Accelerator{XKB_KEY_NoSymbol, std::nullopt}));
  EXPECT_EQ(openboxAccelerator(std::string(10'000'000, '-')), unreadable);
}

}  // namespace
