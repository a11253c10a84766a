#include <gio/gio.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

#include "Platform/desktopshortcuts/DesktopShortcuts.h"
#include "tests/Platform/desktopshortcuts/XkbInputSourceService.h"

namespace {

using keyboardshortcuts::isTakenBySystem;
using keyboardshortcuts::Shortcut;

// The schemas of the tests, and settings in memory: the library reads both variables once. A misuse of it, which it
// would only complain of, ends the test.
class SettingsEnvironment final : public testing::Environment {
 public:
  void SetUp() override {
    setenv("GSETTINGS_SCHEMA_DIR", QUILLMONGER_TEST_SCHEMAS, 1);
    setenv("GSETTINGS_BACKEND", "memory", 1);
    setenv("XDG_DATA_DIRS", "/nonexistent", 1);
    g_log_set_always_fatal(G_LOG_LEVEL_CRITICAL);
  }
};
[[maybe_unused]] const auto* const environment = testing::AddGlobalTestEnvironment(new SettingsEnvironment);

constexpr Shortcut altF4{118, 0x800};
constexpr Shortcut superL{37, 0x100};
constexpr Shortcut superShiftV{9, 0x300};

// The user's settings of one schema, which go with this object.
class UserSettings {
 public:
  explicit UserSettings(const char* schema, const char* path = nullptr)
      : m_settings(path == nullptr ? g_settings_new(schema) : g_settings_new_with_path(schema, path),
                   [](GSettings* settings) { g_object_unref(settings); }) {}
  UserSettings(UserSettings&&) = default;
  ~UserSettings() {
    for (const std::string& key : m_set)
      g_settings_reset(m_settings.get(), key.c_str());
  }

  void setText(const char* key, const char* text) {
    m_set.emplace_back(key);
    ASSERT_TRUE(g_settings_set_string(m_settings.get(), key, text));
  }
  void setTexts(const char* key, std::vector<const char*> texts) {
    m_set.emplace_back(key);
    texts.push_back(nullptr);
    ASSERT_TRUE(g_settings_set_strv(m_settings.get(), key, texts.data()));
  }

 private:
  std::shared_ptr<GSettings> m_settings;
  std::vector<std::string> m_set;
};

class DesktopShortcutsInGSettings : public testing::Test {
 protected:
  static platform::DesktopShortcuts of(const std::string& desktops) {
    static const testsupport::XkbInputSourceService keyboard("us");
    return {keyboard, {}, [desktops](const std::string&) { return std::optional(desktops); }};
  }
};

TEST_F(DesktopShortcutsInGSettings, AreThoseOfTheSchemasThatAreInstalled) {
  const auto shortcuts = of("GNOME");

  EXPECT_TRUE(isTakenBySystem(altF4, shortcuts));
  EXPECT_TRUE(isTakenBySystem(superL, shortcuts));
  EXPECT_FALSE(isTakenBySystem(superShiftV, shortcuts));
}

TEST_F(DesktopShortcutsInGSettings, AreThoseOfTheMomentOfTheQuestion) {
  const auto shortcuts = of("GNOME");
  UserSettings windows("org.gnome.desktop.wm.keybindings");

  windows.setTexts("switch-windows", {"<Alt>Tab", "<Super><Shift>v"});
  EXPECT_TRUE(isTakenBySystem(superShiftV, shortcuts));

  windows.setTexts("switch-windows", {"disabled"});
  EXPECT_FALSE(isTakenBySystem(superShiftV, shortcuts));
}

TEST_F(DesktopShortcutsInGSettings, LeaveOutAChordThatTheUserSwitchedOff) {
  UserSettings windows("org.gnome.desktop.wm.keybindings");
  windows.setTexts("close", {});
  UserSettings keys("org.gnome.settings-daemon.plugins.media-keys");
  keys.setText("screensaver", "");

  EXPECT_FALSE(isTakenBySystem(altF4, of("GNOME")));
  EXPECT_FALSE(isTakenBySystem(superL, of("GNOME")));
}

TEST_F(DesktopShortcutsInGSettings, HaveTheChordsThatTheUserAdded) {
  constexpr auto path = "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/custom0/";
  UserSettings list("org.gnome.settings-daemon.plugins.media-keys");
  list.setTexts("custom-keybindings", {path});
  UserSettings custom("org.gnome.settings-daemon.plugins.media-keys.custom-keybinding", path);
  custom.setText("binding", "<Super><Shift>v");

  EXPECT_TRUE(isTakenBySystem(superShiftV, of("GNOME")));
  EXPECT_TRUE(isTakenBySystem(superShiftV, of("ubuntu:GNOME")));
  EXPECT_TRUE(isTakenBySystem(superShiftV, of("Budgie:GNOME")));
}

TEST_F(DesktopShortcutsInGSettings, PassOverPathsThatAreNone) {
  const std::string longPath = "/" + std::string(100'000, 'a') + "/";
  UserSettings list("org.gnome.settings-daemon.plugins.media-keys");
  list.setTexts("custom-keybindings", {"", "/", "custom0", "/a//b/", "/a", "a/", longPath.c_str()});

  EXPECT_TRUE(isTakenBySystem(superL, of("GNOME")));
}

TEST_F(DesktopShortcutsInGSettings, AskForNoMoreThanSoManyAddedChords) {
  UserSettings list("org.gnome.settings-daemon.plugins.media-keys");
  list.setTexts("custom-keybindings", std::vector<const char*>(10'000, "/a/"));
  UserSettings custom("org.gnome.settings-daemon.plugins.media-keys.custom-keybinding", "/a/");
  custom.setText("binding", "<Super><Shift>v");

  EXPECT_LT(of("GNOME").copySymbolicHotKeys()->size(), 11'000U);
  EXPECT_TRUE(isTakenBySystem(superShiftV, of("GNOME")));
}

TEST_F(DesktopShortcutsInGSettings, HaveTheChordsThatACinnamonUserAdded) {
  UserSettings list("org.cinnamon.desktop.keybindings");
  list.setTexts("custom-list", {"__dummy__", "custom0", "a//b"});
  UserSettings custom("org.cinnamon.desktop.keybindings.custom-keybinding",
                      "/org/cinnamon/desktop/keybindings/custom-keybindings/custom0/");
  custom.setTexts("binding", {"<Super><Shift>v"});

  EXPECT_TRUE(isTakenBySystem(superShiftV, of("X-Cinnamon")));
}

TEST_F(DesktopShortcutsInGSettings, ReadSingleTextsAsMateHasThem) { EXPECT_TRUE(isTakenBySystem(altF4, of("MATE"))); }

TEST_F(DesktopShortcutsInGSettings, PassOverASchemaThatIsNotWhereItShouldBe) {
  EXPECT_FALSE(isTakenBySystem({18, 0x100}, of("MATE")));
}

TEST_F(DesktopShortcutsInGSettings, PassOverASchemaWithoutTheKeyThatItShouldHave) {
  EXPECT_TRUE(isTakenBySystem(superL, of("Budgie")));
}

TEST_F(DesktopShortcutsInGSettings, AreThoseOfTheRunningDesktopAlone) {
  EXPECT_FALSE(isTakenBySystem(superL, of("MATE")));
  EXPECT_EQ(of("sway").copySymbolicHotKeys(), std::nullopt);
  EXPECT_EQ(of("").copySymbolicHotKeys(), std::nullopt);
}

}  // namespace
