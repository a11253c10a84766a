#include "Platform/freedesktop/DesktopBundleProvider.h"

#include <gtest/gtest.h>

#include "tests/Platform/freedesktop/ApplicationsFolder.h"

namespace {

using platform::DesktopEntries;
using platform::matchingEntry;
using platform::ProcessFacts;
using platform::WindowIdentity;

class MatchingEntry : public testing::Test {
 protected:
  testsupport::ApplicationsFolder folder;
  DesktopEntries entries{folder.dataFolders()};

  std::string match(const WindowIdentity& window, const std::optional<ProcessFacts>& process = std::nullopt) const {
    const auto list = entries.present();
    const auto* entry = matchingEntry(*list, window, process);
    return entry == nullptr ? "" : entry->id;
  }
  static WindowIdentity window(const std::string& instance, const std::string& name) {
    return {1, std::nullopt, instance, name};
  }
  static ProcessFacts running(const std::string& executable, std::vector<std::string> arguments = {}) {
    ProcessFacts facts;
    facts.executable = executable;
    facts.arguments = std::move(arguments);
    return facts;
  }
};

TEST_F(MatchingEntry, IsThatOfTheFlatpakBeforeAnyOther) {
  folder.install("org.example.Editor.desktop");
  folder.install("other.desktop", "StartupWMClass=Other\n");
  ProcessFacts process;
  process.flatpakId = "org.example.Editor";

  EXPECT_EQ(match(window("other", "Other"), process), "org.example.Editor");
}

TEST_F(MatchingEntry, IsThatOfTheSnapOrOfItsPackage) {
  folder.install("firefox_firefox.desktop");
  ProcessFacts process;

  process.snapId = "firefox_firefox";
  EXPECT_EQ(match(window("", ""), process), "firefox_firefox");
  process.snapId = "firefox_helper";
  EXPECT_EQ(match(window("", ""), process), "firefox_firefox");
}

TEST_F(MatchingEntry, HasTheStartupClassBeforeTheName) {
  folder.install("edit.desktop");
  folder.install("real.desktop", "StartupWMClass=Edit\n");

  EXPECT_EQ(match(window("edit", "EDIT")), "real");
}

TEST_F(MatchingEntry, HasTheClassOrTheInstanceAsItsIdOrItsLastPart) {
  folder.install("org.xfce.mousepad.desktop");
  folder.install("xterm.desktop");

  EXPECT_EQ(match(window("mousepad", "Mousepad")), "org.xfce.mousepad");
  EXPECT_EQ(match(window("", "org.xfce.Mousepad")), "org.xfce.mousepad");
  EXPECT_EQ(match(window("xterm", "Terminal")), "xterm");
}

TEST_F(MatchingEntry, RunsTheProgram) {
  folder.install("viewer.desktop", "Exec=/usr/bin/see %f\n");

  EXPECT_EQ(match(window("x", "X"), running("/usr/bin/see")), "viewer");
  EXPECT_EQ(match(window("x", "X"), running("", {"see"})), "viewer");
}

TEST_F(MatchingEntry, RunsTheScriptRatherThanItsInterpreter) {
  folder.install("python.desktop", "Exec=python3\n");
  folder.install("meld.desktop", "Exec=meld %F\n");

  EXPECT_EQ(match(window("x", "X"), running("/usr/bin/python3.11", {"/usr/bin/python3", "/usr/bin/meld"})), "meld");
}

TEST_F(MatchingEntry, IsOneThatTheMenusShowIfThereIsOne) {
  folder.install("a.desktop", "StartupWMClass=Office\nNoDisplay=true\n");
  folder.install("b.desktop", "StartupWMClass=Office\n");

  EXPECT_EQ(match(window("", "office")), "b");
}

TEST_F(MatchingEntry, IsNoneForEmptyNamesAndUnknownPrograms) {
  folder.install("a.desktop");
  folder.install("flat.desktop", "Exec=flatpak run org.example\n");

  EXPECT_EQ(match(window("", "")), "");
  EXPECT_EQ(match(window("", ""), running("/usr/bin/flatpak", {"flatpak"})), "");
  EXPECT_EQ(match(window("b", "B"), running("", {""})), "");
}

TEST_F(MatchingEntry, ProvidesBothPartsOrNeither) {
  folder.install("xterm.desktop");
  std::optional<WindowIdentity> front = window("xterm", "XTerm");
  const platform::DesktopBundleProvider provider([&front] { return front; }, entries);

  const auto known = provider.frontmostBundle();
  EXPECT_EQ(known.identifier, "xterm");
  EXPECT_EQ(known.url, foundation::Url::fromFilePath(folder.path("xterm.desktop").string()));
  front = window("unknown", "Unknown");
  EXPECT_FALSE(provider.frontmostBundle().identifier.has_value());
  EXPECT_FALSE(provider.frontmostBundle().url.has_value());
  front.reset();
  EXPECT_FALSE(provider.frontmostBundle().identifier.has_value());
}

TEST_F(MatchingEntry, IsFoundOnceItIsInstalled) {
  const platform::DesktopBundleProvider provider([] { return window("xterm", "XTerm"); }, entries);
  EXPECT_FALSE(provider.frontmostBundle().identifier.has_value());

  folder.install("xterm.desktop");

  EXPECT_EQ(provider.frontmostBundle().identifier, "xterm");
}

class SnapId : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(SnapId, IsReadFromTheControlGroup) { EXPECT_EQ(platform::snapIdOfCgroup(GetParam().first), GetParam().second); }

INSTANTIATE_TEST_SUITE_P(
    Groups, SnapId,
    testing::Values(std::pair("", ""), std::pair("0::/user.slice/session-1.scope\n", ""),
                    std::pair("0::/user.slice/app.slice/snap.firefox.firefox.7f0e.scope\n", "firefox_firefox"),
                    std::pair("0::/a/snap.code.code-url-6fa459ea-ee8a-4ca4-894e-db77e160355e.scope\n", "code_code-url"),
                    std::pair("0::/snap.\n", ""), std::pair("0::/snap.a\n", ""), std::pair("0::/snap.a.b\n", "")));

}  // namespace
