#include "Platform/freedesktop/DesktopInstalledApplications.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <map>

#include "tests/Platform/freedesktop/ApplicationsFolder.h"

namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

class DesktopInstalledApplicationsTest : public testing::Test {
 protected:
  std::vector<quillmonger::InstalledApplication> applications() const {
    return platform::DesktopInstalledApplications(m_entries,
                                                  [this](const std::string& name) {
                                                    const auto found = environment.find(name);
                                                    return found == environment.end() ? std::nullopt
                                                                                      : std::optional(found->second);
                                                  })
        .applications();
  }
  Strings ids() const {
    Strings ids;
    for (const auto& application : applications())
      ids.push_back(application.identifier);
    std::ranges::sort(ids);
    return ids;
  }
  // A program that can be run, or not.
  std::string program(const std::string& name, mode_t mode) const {
    folder.put("../bin/" + name, "#!/bin/sh\n");
    const auto path = folder.path("../bin/" + name).string();
    chmod(path.c_str(), mode);
    return path;
  }

  testsupport::ApplicationsFolder folder;
  std::map<std::string, std::string> environment{{"PATH", folder.path("../bin").string()},
                                                 {"XDG_CURRENT_DESKTOP", "Special:Usual"}};

 private:
  platform::DesktopEntries m_entries{folder.dataFolders()};
};

TEST_F(DesktopInstalledApplicationsTest, TellWhatAnEntrySays) {
  folder.install("org.example.Web.desktop", "GenericName=Browser\nKeywords=internet;www;\nIcon=web\n");

  const auto found = applications();

  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].url, foundation::Url::fromFilePath(folder.path("org.example.Web.desktop").string()));
  EXPECT_EQ(found[0].identifier, "org.example.Web");
  EXPECT_EQ(found[0].name, "Name of org.example.Web.desktop");
  EXPECT_EQ(found[0].genericName, "Browser");
  EXPECT_EQ(found[0].keywords, (Strings{"internet", "www"}));
}

TEST_F(DesktopInstalledApplicationsTest, TellTheTextsInTheUsersLanguage) {
  setenv("LANGUAGE", "de", 1);
  folder.put("web.desktop",
             "[Desktop Entry]\nType=Application\nName=Web\nName[de]=Netz\nGenericName=Browser\nGenericName[de]=Leser\n"
             "Keywords=internet;\nKeywords[de]=weltweit;netz;\n");

  const auto found = applications();
  unsetenv("LANGUAGE");

  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].name, "Netz");
  EXPECT_EQ(found[0].genericName, "Leser");
  EXPECT_EQ(found[0].keywords, (Strings{"weltweit", "netz"}));
}

TEST_F(DesktopInstalledApplicationsTest, LeaveOutWhatTheMenusDoNotShow) {
  folder.install("shown.desktop");
  folder.install("nodisplay.desktop", "NoDisplay=true\n");
  folder.install("hidden.desktop", "Hidden=true\n");
  folder.put("nameless.desktop", "[Desktop Entry]\nType=Application\nExec=a\n");
  folder.put("link.desktop", "[Desktop Entry]\nType=Link\nName=a\n");

  EXPECT_EQ(ids(), Strings{"shown"});
}

TEST_F(DesktopInstalledApplicationsTest, LeaveOutWhatNeedsAProgramThatIsNotThere) {
  folder.install("path.desktop", "TryExec=" + program("there", 0755) + "\n");
  folder.install("word.desktop", "TryExec=there\n");
  folder.install("locked.desktop", "TryExec=" + program("locked", 0644) + "\n");
  folder.install("missing.desktop", "TryExec=missing\n");
  folder.install("missing-path.desktop", "TryExec=/nowhere/missing\n");
  folder.install("folder.desktop", "TryExec=/usr\n");

  EXPECT_EQ(ids(), (Strings{"path", "word"}));
}

TEST_F(DesktopInstalledApplicationsTest, LeaveOutWhatBelongsToAnotherDesktop) {
  folder.install("everywhere.desktop");
  folder.install("ours.desktop", "OnlyShowIn=Other;Usual;\n");
  folder.install("theirs.desktop", "OnlyShowIn=Other;\n");
  folder.install("not-ours.desktop", "NotShowIn=Usual;\n");
  folder.install("not-theirs.desktop", "NotShowIn=Other;\n");
  folder.install("special.desktop", "OnlyShowIn=Special;\nNotShowIn=Usual;\n");

  EXPECT_EQ(ids(), (Strings{"everywhere", "not-theirs", "ours", "special"}));
  environment.erase("XDG_CURRENT_DESKTOP");
  EXPECT_EQ(ids(), (Strings{"everywhere", "not-ours", "not-theirs"}));
}

TEST_F(DesktopInstalledApplicationsTest, TakeTheUsersEntryBeforeTheSystemsAndOneOfEachId) {
  const testsupport::ApplicationsFolder system;
  folder.put("a.desktop", "[Desktop Entry]\nType=Application\nName=Mine\n");
  folder.install("b.desktop", "NoDisplay=true\n");
  system.install("a.desktop");
  system.install("b.desktop");
  const platform::DesktopEntries both({folder.dataFolders()[0], system.dataFolders()[0]});

  const auto found =
      platform::DesktopInstalledApplications(both, [](const auto&) { return std::nullopt; }).applications();

  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].name, "Mine");
}

TEST_F(DesktopInstalledApplicationsTest, SurviveHostileEntries) {
  folder.install("good.desktop");
  folder.put("binary.desktop", std::string("[Desktop Entry]\0\xff\x01", 18));
  folder.put("invalid.desktop", "[Desktop Entry]\nType=Application\nName=\xff\xfe\n");
  folder.put("huge.desktop", "[Desktop Entry]\nType=Application\nName=" + std::string(2U << 20U, 'a') + "\n");
  fs::create_directory(folder.path("folder.desktop"));
  fs::create_symlink(folder.path("self.desktop"), folder.path("self.desktop"));
  fs::create_symlink("/dev/zero", folder.path("zero.desktop"));
  ASSERT_EQ(mkfifo(folder.path("pipe.desktop").c_str(), 0600), 0);

  EXPECT_EQ(ids(), Strings{"good"});
}

TEST_F(DesktopInstalledApplicationsTest, ReadAFolderOnceHoweverManyLinksLeadBackToIt) {
  folder.install("good.desktop");
  folder.install("sub/other.desktop");
  fs::create_directory_symlink(folder.path(""), folder.path("loop"));
  fs::create_directory_symlink(folder.path(""), folder.path("sub/loop"));

  EXPECT_EQ(ids(), (Strings{"good", "sub-other"}));
}

TEST_F(DesktopInstalledApplicationsTest, CutTextsThatNobodyReads) {
  std::string keywords;
  for (int count = 0; count < 1000; ++count)
    keywords += "word;";
  std::string umlauts;
  for (int count = 0; count < 500; ++count)
    umlauts += "ü";
  folder.put("b.desktop", "[Desktop Entry]\nType=Application\nName=x" + umlauts +
                              "\nGenericName=" + std::string(1000, 'g') + "\nKeywords=" + keywords + "\n");

  const auto found = applications();

  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].name.size(), 255U);
  EXPECT_EQ(found[0].name.substr(253), "ü");
  EXPECT_EQ(found[0].genericName.size(), 256U);
  EXPECT_EQ(found[0].keywords.size(), 64U);
}

}  // namespace
