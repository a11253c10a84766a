#include "Settings/Localization.h"

#include <gtest/gtest.h>

namespace {

using settings::localization::settingsWord;
using settings::localization::singlePaneTitle;

TEST(SettingsLocalization, SaysSettingsFromVersionThirteenOn) {
  EXPECT_EQ(settingsWord("en", 12), "Preferences");
  EXPECT_EQ(settingsWord("en", 13), "Settings");
}

TEST(SettingsLocalization, SpeaksTheLanguageOfTheLocale) {
  EXPECT_EQ(settingsWord("de_AT.UTF-8", 14), "Einstellungen");
  EXPECT_EQ(settingsWord("ca_ES@valencia", 14), "Configuració");
}

TEST(SettingsLocalization, HeedsACountryThatHasItsOwnWord) {
  EXPECT_EQ(settingsWord("pt_BR", 14), "Ajustes");
  EXPECT_EQ(settingsWord("pt-PT", 14), "Definições");
  EXPECT_EQ(settingsWord("zh_TW.UTF-8", 14), "設定");
}

TEST(SettingsLocalization, FallsBackOnEnglish) {
  EXPECT_EQ(settingsWord("C", 14), "Settings");
  EXPECT_EQ(settingsWord("", 12), "Preferences");
}

TEST(SettingsLocalization, NamesTheProgramByTheFirstNameThatItHas) {
  EXPECT_EQ(singlePaneTitle({"Shown", "Name", "file"}, "en", 14), "Shown Settings");
  EXPECT_EQ(singlePaneTitle({std::nullopt, "Name", "file"}, "en", 14), "Name Settings");
  EXPECT_EQ(singlePaneTitle({std::nullopt, std::nullopt, "file"}, "en", 14), "file Settings");
  EXPECT_EQ(singlePaneTitle({}, "en", 14), "<Unknown App Name> Settings");
}

}  // namespace
