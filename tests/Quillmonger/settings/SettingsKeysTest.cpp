#include "Quillmonger/settings/SettingsKeys.h"

#include <gtest/gtest.h>

namespace {

using namespace quillmonger;
using defaults::Defaults;
using defaults::Object;
using defaults::UserDefaults;

TEST(SettingsKeys, ReadTheDefaultsOfTheTableFromAFreshStore) {
  UserDefaults store;
  const Defaults settings(store);

  EXPECT_EQ(settings[keys::historySize], 10);
  EXPECT_EQ(settings[keys::numberOfPastes], 0);
  EXPECT_EQ(settings[keys::searchDebounceInterval], 0.15);
  EXPECT_EQ(settings[keys::soundVolume], 0.45F);
  EXPECT_EQ(settings[keys::truncationMode], TruncationMode::middle);
  EXPECT_EQ(settings[keys::selectedColorScheme], std::nullopt);
  EXPECT_EQ(settings[keys::ignoredApps],
            std::vector<std::string>{"file:///System/Applications/Utilities/Keychain%20Access.app/"});
  for (const auto* off :
       {&keys::alwaysPasteWithoutFormatting, &keys::persistHistory, &keys::quickPaste, &keys::searchCaseSensitive,
        &keys::searchRegex, &keys::isIncognitoMode, &keys::ignoreImages}) {
    EXPECT_FALSE(settings[*off]) << off->name();
  }
  for (const auto* on :
       {&keys::showSourceAppIcon, &keys::showKeyboardShortcuts, &keys::showScrollbar, &keys::firstLaunch,
        &keys::autoOpenImagePreview, &keys::autoOpenOculet, &keys::searchAppName, &keys::ignoreSensitiveData,
        &keys::hideLongTextPreview, &keys::animateMenuBar, &keys::pasteToApp, &keys::soundEffectsEnabled,
        &keys::showContentTypeIndicators, &keys::showColorIndicator, &keys::showPreviewPaneScrollbar}) {
    EXPECT_TRUE(settings[*on]) << on->name();
  }
}

TEST(SettingsKeys, DeclareEachDefaultButThatOfTheColorScheme) {
  UserDefaults store;
  Defaults settings(store);
  std::size_t count = 0;
  forEachSettingsKey([&count](const auto&) { ++count; });

  declareSettings(settings);

  const auto all = store.dictionaryRepresentation();
  EXPECT_EQ(count, 29U);
  EXPECT_EQ(all.size(), 28U);
  EXPECT_FALSE(all.contains("selectedColorScheme"));
}

TEST(SettingsKeys, ReadAnyOtherTruncationStringAsTail) {
  UserDefaults store({{"truncationMode", std::string("sideways")}});

  EXPECT_EQ(Defaults(store)[keys::truncationMode], TruncationMode::tail);
}

TEST(SettingsKeys, ReadATruncationModeThatIsNoStringAsTheDefault) {
  UserDefaults store({{"truncationMode", std::int64_t{2}}});

  EXPECT_EQ(Defaults(store)[keys::truncationMode], TruncationMode::middle);
}

TEST(SettingsKeys, StoreEachTruncationModeAsItsName) {
  UserDefaults store;
  Defaults settings(store);

  for (const auto& [mode, text] : {std::pair(TruncationMode::head, "head"), std::pair(TruncationMode::middle, "middle"),
                                   std::pair(TruncationMode::tail, "tail")}) {
    settings.set(keys::truncationMode, mode);
    EXPECT_EQ(store.objectForKey("truncationMode"), Object(std::string(text)));
    EXPECT_EQ(settings[keys::truncationMode], mode);
  }
}

TEST(SettingsKeys, ReadAColorSchemeOf7AsNone) {
  UserDefaults store({{"selectedColorScheme", std::int64_t{7}}});

  EXPECT_EQ(Defaults(store)[keys::selectedColorScheme], std::nullopt);
}

TEST(SettingsKeys, ReadAColorSchemeOf0AsNone) {
  UserDefaults store({{"selectedColorScheme", std::int64_t{0}}});

  EXPECT_EQ(Defaults(store)[keys::selectedColorScheme], std::nullopt);
}

TEST(SettingsKeys, StoreTheColorSchemesAs1And2) {
  UserDefaults store;
  Defaults settings(store);

  settings.set(keys::selectedColorScheme, {ColorScheme::light});
  EXPECT_EQ(store.objectForKey("selectedColorScheme"), Object(std::int64_t{1}));
  settings.set(keys::selectedColorScheme, {ColorScheme::dark});
  EXPECT_EQ(store.objectForKey("selectedColorScheme"), Object(std::int64_t{2}));
  EXPECT_EQ(settings[keys::selectedColorScheme], ColorScheme::dark);
}

TEST(SettingsKeys, KeepTheWidthsOfVolumeAndDelay) {
  UserDefaults store;
  Defaults settings(store);

  settings.set(keys::soundVolume, 0.3F);
  settings.set(keys::searchDebounceInterval, 0.3);

  EXPECT_EQ(store.objectForKey("soundVolume"), Object(0.3F));
  EXPECT_EQ(store.objectForKey("searchDebounceInterval"), Object(0.3));
}

}  // namespace
