#include "Quillmonger/settings/SettingsText.h"

#include <gtest/gtest.h>

#include "Quillmonger/settings/SettingsKeys.h"

namespace {

using namespace quillmonger;

class SettingsTextTest : public testing::Test {
 protected:
  defaults::UserDefaults store;
  defaults::Defaults settings{store};
  SettingsText text{settings};
};

TEST_F(SettingsTextTest, ReadsEachKeyAndTakesBackWhatItReads) {
  for (const auto& name : SettingsText::names()) {
    const auto before = text.read(name);
    ASSERT_TRUE(before) << name;
    EXPECT_TRUE(text.write(name, before.value())) << name;
    EXPECT_EQ(text.read(name).value(), before.value()) << name;
  }
}

TEST_F(SettingsTextTest, ReadsTheSinglePrecisionVolumeAsItWasWritten) {
  EXPECT_EQ(text.read("soundVolume").value(), "0.45");
}

TEST_F(SettingsTextTest, WritesTheKindOfTheKey) {
  ASSERT_TRUE(text.write("historySize", "200"));
  ASSERT_TRUE(text.write("soundVolume", "1"));
  ASSERT_TRUE(text.write("ignoredApps", R"(["file:///a.desktop"])"));

  EXPECT_EQ(settings[keys::historySize], 200);
  EXPECT_EQ(store.objectForKey("soundVolume"), defaults::Object(1.0F));
  EXPECT_EQ(settings[keys::ignoredApps], std::vector<std::string>{"file:///a.desktop"});
}

TEST_F(SettingsTextTest, TakesThePlainWordOfAColourScheme) {
  EXPECT_EQ(text.read("selectedColorScheme").value(), "system");

  ASSERT_TRUE(text.write("selectedColorScheme", "dark"));
  EXPECT_EQ(settings[keys::selectedColorScheme], ColorScheme::dark);
  EXPECT_EQ(text.read("selectedColorScheme").value(), "dark");
  ASSERT_TRUE(text.write("selectedColorScheme", "light"));
  EXPECT_EQ(settings[keys::selectedColorScheme], ColorScheme::light);
  ASSERT_TRUE(text.write("selectedColorScheme", "system"));
  EXPECT_EQ(settings[keys::selectedColorScheme], std::nullopt);
}

TEST_F(SettingsTextTest, RemovesAStoredValue) {
  ASSERT_TRUE(text.write("persistHistory", "true"));

  ASSERT_TRUE(text.remove("persistHistory"));

  EXPECT_TRUE(store.storedObjects().empty());
}

TEST_F(SettingsTextTest, NamesTheUnknownSetting) {
  EXPECT_NE(text.read("histroySize").error().message.find("histroySize"), std::string::npos);
  EXPECT_FALSE(text.write("histroySize", "1"));
  EXPECT_FALSE(text.remove("histroySize"));
  EXPECT_TRUE(store.storedObjects().empty());
}

class WrongText : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(WrongText, IsRefusedAndChangesNothing) {
  defaults::UserDefaults store;
  defaults::Defaults settings(store);

  const auto outcome = SettingsText(settings).write(GetParam().first, GetParam().second);

  ASSERT_FALSE(outcome);
  EXPECT_NE(outcome.error().message.find(GetParam().first), std::string::npos);
  EXPECT_TRUE(store.storedObjects().empty());
}

INSTANTIATE_TEST_SUITE_P(Texts, WrongText,
                         testing::Values(std::pair("persistHistory", "yes"), std::pair("persistHistory", ""),
                                         std::pair("historySize", "10.5"), std::pair("historySize", "10 "),
                                         std::pair("historySize", "9223372036854775808"),
                                         std::pair("soundVolume", "loud"), std::pair("soundVolume", "nan"),
                                         std::pair("soundVolume", "1e99"), std::pair("searchDebounceInterval", "inf"),
                                         std::pair("truncationMode", "centre"), std::pair("selectedColorScheme", "3"),
                                         std::pair("selectedColorScheme", "Dark"), std::pair("ignoredApps", "a"),
                                         std::pair("ignoredApps", "[1]"), std::pair("ignoredApps", "[[\"a\"]]"),
                                         std::pair("ignoredApps", "[")));

}  // namespace
