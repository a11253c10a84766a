#include "Quillmonger/capture/IgnoredApps.h"

#include <gtest/gtest.h>

#include <map>

#include "Quillmonger/settings/SettingsKeys.h"

namespace {

using namespace quillmonger;

class FakeBundles final : public ApplicationBundles {
 public:
  std::map<std::string, ApplicationBundle> installed;

  std::optional<ApplicationBundle> bundleAt(const foundation::Url& url) const override {
    const auto found = installed.find(url.absoluteString());
    return found == installed.end() ? std::nullopt : std::optional(found->second);
  }
};

const std::string editor = "file:///usr/share/applications/org.example.Editor.desktop";

class IgnoredAppsTest : public testing::Test {
 protected:
  defaults::UserDefaults store;
  defaults::Defaults settings{store};
  FakeBundles bundles;
  IgnoredApps ignored{settings, bundles};
};

TEST_F(IgnoredAppsTest, HoldTheBuiltInEntryInAFreshStore) {
  const auto apps = ignored.apps();

  ASSERT_EQ(apps.size(), 1U);
  EXPECT_EQ(apps[0].bundleIdentifier, "com.apple.keychainaccess");
  EXPECT_EQ(apps[0].name, "");
  EXPECT_EQ(apps[0].relativePath, "/System/Applications/Utilities/Keychain Access.app");
  EXPECT_EQ(apps[0].url.absoluteString(), "file:///System/Applications/Utilities/Keychain%20Access.app/");
  EXPECT_TRUE(ignored.contains("com.apple.keychainaccess"));
}

TEST_F(IgnoredAppsTest, AreReadFromTheInstalledApplications) {
  bundles.installed[editor] = {"org.example.Editor", "Editor"};
  settings.set(keys::ignoredApps, {editor});

  const auto apps = ignored.apps();

  ASSERT_EQ(apps.size(), 1U);
  EXPECT_EQ(apps[0].bundleIdentifier, "org.example.Editor");
  EXPECT_EQ(apps[0].name, "Editor");
  EXPECT_FALSE(ignored.contains("com.apple.keychainaccess"));
}

TEST_F(IgnoredAppsTest, DropARemovedApplicationWithAMessageAndKeepItsString) {
  bundles.installed[editor] = {"org.example.Editor", "Editor"};
  settings.set(keys::ignoredApps, {editor});
  bundles.installed.clear();

  testing::internal::CaptureStdout();
  const bool isIgnored = ignored.contains("org.example.Editor");
  const std::string output = testing::internal::GetCapturedStdout();

  EXPECT_FALSE(isIgnored);
  EXPECT_EQ(output, "could not decode object '" + editor + "' into url\n");
  EXPECT_EQ(settings[keys::ignoredApps], std::vector<std::string>{editor});
}

TEST_F(IgnoredAppsTest, SkipWhatIsNoUrlAndWhatHasNoIdentifier) {
  bundles.installed[editor] = {std::nullopt, "Editor"};
  settings.set(keys::ignoredApps, {"not a url", editor});

  testing::internal::CaptureStdout();
  const auto apps = ignored.apps();
  const std::string output = testing::internal::GetCapturedStdout();

  EXPECT_TRUE(apps.empty());
  EXPECT_EQ(output,
            "could not decode object 'not a url' into url\ncould not decode object '" + editor + "' into url\n");
}

TEST_F(IgnoredAppsTest, AreNoneOnceTheListWasWrittenEmpty) {
  settings.set(keys::ignoredApps, {});

  EXPECT_TRUE(ignored.apps().empty());
}

TEST_F(IgnoredAppsTest, KeepTheBuiltInEntryInAWrittenList) {
  bundles.installed[editor] = {"org.example.Editor", "Editor"};
  auto list = settings[keys::ignoredApps];
  list.push_back(editor);
  settings.set(keys::ignoredApps, list);

  EXPECT_TRUE(ignored.contains("com.apple.keychainaccess"));
  EXPECT_TRUE(ignored.contains("org.example.Editor"));
}

TEST_F(IgnoredAppsTest, AreEqualByIdentifierAloneAndNewAtEachRead) {
  const auto first = ignored.apps();
  const auto second = ignored.apps();

  EXPECT_EQ(first, second);
  EXPECT_NE(first[0].id, second[0].id);
}

}  // namespace
