#include "Platform/desktopshortcuts/DesktopShortcuts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "tests/Platform/desktopshortcuts/XkbInputSourceService.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using keyboardshortcuts::isTakenBySystem;
using keyboardshortcuts::Shortcut;

constexpr Shortcut superShiftV{9, 0x300};
constexpr Shortcut superE{14, 0x100};
constexpr Shortcut superR{15, 0x100};
constexpr Shortcut ctrlAltT{17, 0x1800};
constexpr auto xfceFile = "xfce4/xfconf/xfce-perchannel-xml/xfce4-keyboard-shortcuts.xml";

class DesktopShortcuts : public testing::Test {
 protected:
  void put(const std::string& file, const std::string& text) const {
    const auto path = m_folder.path() / file;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
  }
  void putXfce(const std::string& folder, const std::string& defaults, const std::string& custom) const {
    put(folder + "/" + xfceFile, R"(<?xml version="1.0"?><channel name="xfce4-keyboard-shortcuts" version="1.0">)"
                                 R"(<property name="commands" type="empty"><property name="default" type="empty">)" +
                                     defaults + R"(</property><property name="custom" type="empty">)" + custom +
                                     R"(</property></property></channel>)");
  }
  [[nodiscard]] platform::DesktopShortcuts of(const std::string& desktop) const {
    return {m_keyboard, {m_folder.path() / "user", m_folder.path() / "system"}, [desktop](const std::string& name) {
              return name == "XDG_CURRENT_DESKTOP" ? std::optional(desktop) : std::nullopt;
            }};
  }
  [[nodiscard]] bool isTaken(const Shortcut& shortcut, const std::string& desktop) const {
    return isTakenBySystem(shortcut, of(desktop));
  }

  testsupport::TemporaryFolder m_folder;
  const testsupport::XkbInputSourceService m_keyboard{"us"};
};

std::string xfceChord(const std::string& chord, const std::string& value = "command") {
  return "<property name=\"" + chord + "\" type=\"string\" value=\"" + value + "\"/>";
}
constexpr auto xfceOverride = R"(<property name="override" type="bool" value="true"/>)";

TEST_F(DesktopShortcuts, OfXfceAreTheSystemsWhereTheUserChangedNone) {
  putXfce("system", xfceChord("&lt;Super&gt;e") + xfceChord("&lt;Primary&gt;&lt;Alt&gt;t"), "");

  EXPECT_TRUE(isTaken(superE, "XFCE"));
  EXPECT_TRUE(isTaken(ctrlAltT, "XFCE"));
  EXPECT_FALSE(isTaken(superShiftV, "XFCE"));
}

TEST_F(DesktopShortcuts, OfXfceAreTheUsersOwnOnceTheyStandInForThePresetOnes) {
  putXfce("system", xfceChord("&lt;Super&gt;e") + xfceChord("&lt;Super&gt;r"), "");
  putXfce(
      "user", R"(<property name="&lt;Super&gt;e" type="empty"/><property name="&lt;Super&gt;r" type="empty"/>)",
      xfceChord("&lt;Super&gt;&lt;Shift&gt;v") + R"(<property name="&lt;Super&gt;r" type="empty"/>)" + xfceOverride);

  EXPECT_TRUE(isTaken(superShiftV, "XFCE"));
  EXPECT_FALSE(isTaken(superE, "XFCE"));
  EXPECT_FALSE(isTaken(superR, "XFCE"));
}

TEST_F(DesktopShortcuts, OfXfceStayPresetWhereTheUsersFileHasNoValueForThem) {
  putXfce("system", xfceChord("&lt;Super&gt;e") + xfceChord("&lt;Super&gt;r"), "");
  putXfce("user", R"(<property name="&lt;Super&gt;e" type="empty"/>)" + xfceChord("&lt;Super&gt;r", ""),
          xfceChord("&lt;Super&gt;&lt;Shift&gt;v"));

  EXPECT_TRUE(isTaken(superE, "XFCE"));
  EXPECT_FALSE(isTaken(superR, "XFCE"));
  EXPECT_FALSE(isTaken(superShiftV, "XFCE"));
}

TEST_F(DesktopShortcuts, OfXfceDoNotIncludeWhatBelongsToAChord) {
  putXfce("system",
          R"(<property name="&lt;Super&gt;r" type="string" value="x"><property name="&lt;Super&gt;e" type="string" )"
          R"(value="x"/></property>)",
          "");

  EXPECT_TRUE(isTaken(superR, "XFCE"));
  EXPECT_FALSE(isTaken(superE, "XFCE"));
}

TEST_F(DesktopShortcuts, OfXfcePassOverAUsersFileThatIsDamaged) {
  putXfce("system", xfceChord("&lt;Super&gt;e"), "");
  put("user/" + std::string(xfceFile),
      "<channel><property name=\"commands\"><property name=\"custom\">" + std::string(xfceOverride));

  EXPECT_TRUE(isTaken(superE, "XFCE"));
}

TEST_F(DesktopShortcuts, OfXfceSurviveDeepNesting) {
  std::string text;
  for (int depth = 0; depth < 20'000; ++depth)
    text += "<property name=\"a\" type=\"string\" value=\"b\">";
  put("user/" + std::string(xfceFile), text);

  EXPECT_EQ(of("XFCE").copySymbolicHotKeys(), std::nullopt);
}

TEST_F(DesktopShortcuts, OfPlasmaAreThoseInUse) {
  put("user/kglobalshortcutsrc",
      "[$Version]\nupdate_info=x\n[kwin]\n_k_friendly_name=Meta+E\nOverview=Meta+Shift+V\\tMeta+R,Meta+E,Toggle "
      "Overview\n"
      "Grid=none,Meta+E,Grid\nEmpty=,,\n[services][org.kde.konsole.desktop]\n_launch=Ctrl+Alt+T\n");

  EXPECT_TRUE(isTaken(superShiftV, "KDE"));
  EXPECT_TRUE(isTaken(superR, "KDE"));
  EXPECT_TRUE(isTaken(ctrlAltT, "KDE"));
  EXPECT_FALSE(isTaken(superE, "KDE"));
}

TEST_F(DesktopShortcuts, OfPlasmaCanHaveACommaOrABackslash) {
  put("user/kglobalshortcutsrc", "[a]\nOne=Meta+\\\\,,none,One\nTwo=Meta+\\\\,none,Two\n");

  EXPECT_TRUE(isTaken({43, 0x100}, "KDE"));
  EXPECT_FALSE(isTaken({42, 0x100}, "KDE"));
}

TEST_F(DesktopShortcuts, OfPlasmaSurviveLinesThatMakeNoSense) {
  using namespace std::string_literals;
  put("user/kglobalshortcutsrc",
      "=\n\\\n[\nA=\\\nB=\\\\\nC=\xFF\xFE\0,\nD"s + std::string(100'000, '\\') + "\nE=Meta+E,none,E\n");

  EXPECT_TRUE(isTaken(superE, "KDE"));
}

TEST_F(DesktopShortcuts, OfOpenboxAreThoseOfItsFile) {
  put("system/openbox/rc.xml",
      R"(<openbox_config xmlns="http://openbox.org/3.4/rc"><keyboard><chainQuitKey>C-g</chainQuitKey>)"
      R"(<keybind key="W-S-v W-r"><action name="A"/></keybind></keyboard></openbox_config>)");

  EXPECT_TRUE(isTaken(superShiftV, "openbox"));
  EXPECT_TRUE(isTaken(superR, "LXQt"));
  EXPECT_FALSE(isTaken(superE, "openbox"));
}

TEST_F(DesktopShortcuts, OfOpenboxAreTheUsersWhereThereAreSuch) {
  put("system/openbox/lxde-rc.xml", R"(<a><keybind key="W-r"/></a>)");
  put("user/openbox/lxde-rc.xml", R"(<a><keybind key="W-e"/></a>)");

  EXPECT_TRUE(isTaken(superE, "LXDE"));
  EXPECT_FALSE(isTaken(superR, "LXDE"));
}

TEST_F(DesktopShortcuts, OfOpenboxTakeTheFirstChordOfAChain) {
  put("user/openbox/rc.xml", R"(<a><keybind key="W-r"><keybind key="W-e"/></keybind><keybind key="W-S-v"/></a>)");

  EXPECT_TRUE(isTaken(superR, "openbox"));
  EXPECT_TRUE(isTaken(superShiftV, "openbox"));
  EXPECT_FALSE(isTaken(superE, "openbox"));
}

TEST_F(DesktopShortcuts, AreReadAnewAtEachQuestion) {
  const auto shortcuts = of("KDE");
  EXPECT_FALSE(isTakenBySystem(superE, shortcuts));

  put("user/kglobalshortcutsrc", "A=Meta+E\n");
  EXPECT_TRUE(isTakenBySystem(superE, shortcuts));
}

TEST_F(DesktopShortcuts, HaveNoCodeForAKeyThatTheKeyboardCannotType) {
  put("user/kglobalshortcutsrc", "A=Media Play\nB=Meta+Ж\nC=Hyper+E\n");

  const auto entries = of("KDE").copySymbolicHotKeys();

  ASSERT_EQ(entries->size(), 3U);
  EXPECT_EQ((*entries)[0].code, std::nullopt);
  EXPECT_EQ((*entries)[1].code, std::nullopt);
  EXPECT_EQ((*entries)[1].modifiers, 0x100);
  EXPECT_EQ((*entries)[2].code, 14);
  EXPECT_EQ((*entries)[2].modifiers, std::nullopt);
}

TEST_F(DesktopShortcuts, HoldTheShiftThatTheirKeyTakes) {
  put("user/kglobalshortcutsrc", "A=Meta+?\n");

  EXPECT_TRUE(isTaken({44, 0x300}, "KDE"));
  EXPECT_FALSE(isTaken({44, 0x100}, "KDE"));
}

TEST_F(DesktopShortcuts, AreAbsentWhereNothingOfThemCanBeRead) {
  for (const auto* desktop : {"XFCE", "KDE", "LXDE", "LXQt", "openbox", "sway", ":::", ""})
    EXPECT_EQ(of(desktop).copySymbolicHotKeys(), std::nullopt) << desktop;
}

TEST_F(DesktopShortcuts, AreAbsentWhereTheirFileIsEndless) {
  const std::string filler(10'000'000, '\n');
  put("user/kglobalshortcutsrc", "A=Meta+E\n" + filler);
  put("user/openbox/rc.xml", "<a><keybind key=\"W-e\"/></a>" + filler);
  putXfce("user", xfceChord("&lt;Super&gt;e") + filler, "");

  for (const auto* desktop : {"XFCE", "KDE", "openbox"})
    EXPECT_EQ(of(desktop).copySymbolicHotKeys(), std::nullopt) << desktop;
}

TEST_F(DesktopShortcuts, AreAbsentWhereTheirFileIsNone) {
  std::filesystem::create_directories(m_folder.path() / "user/kglobalshortcutsrc");
  put("user/openbox/rc.xml", std::string("\0\xFF<<>", 5));

  EXPECT_EQ(of("KDE").copySymbolicHotKeys(), std::nullopt);
  EXPECT_EQ(of("openbox").copySymbolicHotKeys(), std::nullopt);
}

}  // namespace
