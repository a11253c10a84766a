#include "Platform/freedesktop/DesktopEntries.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>

#include "Platform/freedesktop/DesktopApplicationBundles.h"
#include "tests/Platform/freedesktop/ApplicationsFolder.h"

namespace {

namespace fs = std::filesystem;
using foundation::Url;
using platform::DesktopEntries;

class DesktopEntriesTest : public testing::Test {
 protected:
  testsupport::ApplicationsFolder folder;
  DesktopEntries entries{folder.dataFolders()};

  std::vector<std::string> ids() const {
    std::vector<std::string> ids;
    for (const auto& entry : *entries.present())
      ids.push_back(entry.id);
    std::sort(ids.begin(), ids.end());
    return ids;
  }
};

TEST_F(DesktopEntriesTest, ReadWhatAnEntrySays) {
  folder.install("org.example.Editor.desktop",
                 "Icon=editor\nExec=env A=b \"/opt/my editor/edit\" --new %U\nStartupWMClass=Edit\n"
                 "Categories=Utility;TextEditor;\nNoDisplay=true\n");

  const auto list = entries.present();

  ASSERT_EQ(list->size(), 1U);
  const auto& entry = list->front();
  EXPECT_EQ(entry.id, "org.example.Editor");
  EXPECT_EQ(entry.url, Url::fromFilePath(folder.path("org.example.Editor.desktop").string()));
  EXPECT_EQ(entry.name, "Name of org.example.Editor.desktop");
  EXPECT_EQ(entry.icon, "editor");
  EXPECT_EQ(entry.binary, "/opt/my editor/edit");
  EXPECT_EQ(entry.startupWmClass, "Edit");
  EXPECT_EQ(entry.categories, (std::vector<std::string>{"Utility", "TextEditor"}));
  EXPECT_TRUE(entry.isNoDisplay);
}

TEST_F(DesktopEntriesTest, NameAnEntryOfASubFolderByItsPath) {
  folder.install("kde/konsole.desktop");

  EXPECT_EQ(ids(), std::vector<std::string>{"kde-konsole"});
}

TEST_F(DesktopEntriesTest, TakeTheEntryOfTheMoreImportantFolder) {
  const testsupport::ApplicationsFolder second;
  folder.install("a.desktop", "Icon=first\n");
  second.install("a.desktop", "Icon=second\n");
  second.install("b.desktop");

  const auto list = DesktopEntries({folder.dataFolders()[0], second.dataFolders()[0]}).present();

  ASSERT_EQ(list->size(), 2U);
  EXPECT_EQ(list->front().icon, "first");
}

TEST_F(DesktopEntriesTest, LeaveOutWhatAHiddenEntryStandsFor) {
  const testsupport::ApplicationsFolder second;
  folder.put("a.desktop", "[Desktop Entry]\nHidden=true\n");
  second.install("a.desktop");

  EXPECT_TRUE(DesktopEntries({folder.dataFolders()[0], second.dataFolders()[0]}).present()->empty());
}

TEST_F(DesktopEntriesTest, AreTheSameUntilAFolderChanges) {
  folder.install("a.desktop");
  const auto before = entries.present();
  EXPECT_EQ(entries.present(), before);

  folder.install("sub/b.desktop");

  EXPECT_EQ(ids(), (std::vector<std::string>{"a", "sub-b"}));
}

TEST_F(DesktopEntriesTest, NoticeAFolderThatComesLater) {
  EXPECT_TRUE(entries.present()->empty());

  folder.install("a.desktop");

  EXPECT_EQ(ids(), std::vector<std::string>{"a"});
}

TEST_F(DesktopEntriesTest, SurviveFilesThatAreNoEntries) {
  folder.put("binary.desktop", std::string("\0\xff\x01", 3));
  folder.put("empty.desktop", "");
  folder.put("link.desktop", "[Desktop Entry]\nType=Link\nName=x\n");
  folder.put("large.desktop", "[Desktop Entry]\nType=Application\n#" + std::string(2U << 20U, 'a'));
  folder.put("exec.desktop", "[Desktop Entry]\nType=Application\nName=\xff\nExec=\"unclosed\n");
  folder.put("readme.txt", "[Desktop Entry]\nType=Application\n");
  fs::create_directory(folder.path("folder.desktop"));
  fs::create_directory_symlink(folder.path(""), folder.path("loop"));
  ASSERT_EQ(mkfifo(folder.path("pipe.desktop").c_str(), 0600), 0);
  folder.install("good.desktop");

  const auto all = ids();

  EXPECT_TRUE(std::find(all.begin(), all.end(), "good") != all.end());
  for (const char* id : {"binary", "empty", "link", "large", "folder", "pipe", "readme"}) {
    EXPECT_TRUE(std::find(all.begin(), all.end(), id) == all.end()) << id;
  }
}

TEST_F(DesktopEntriesTest, GiveTheApplicationAtAUrl) {
  folder.install("kde/konsole.desktop");
  const auto url = Url::fromFilePath(folder.path("kde/konsole.desktop").string());

  const auto bundle = platform::DesktopApplicationBundles(entries).bundleAt(url);

  ASSERT_TRUE(bundle.has_value());
  EXPECT_EQ(bundle->identifier, "kde-konsole");
  EXPECT_EQ(bundle->displayName, "Name of kde/konsole.desktop");
}

TEST_F(DesktopEntriesTest, GiveAnApplicationOutsideTheFolders) {
  const testsupport::ApplicationsFolder elsewhere;
  elsewhere.install("own.desktop");

  const auto entry = entries.at(Url::fromFilePath(elsewhere.path("own.desktop").string()));

  ASSERT_TRUE(entry.has_value());
  EXPECT_EQ(entry->id, "own");
}

TEST_F(DesktopEntriesTest, GiveNothingForARemovedApplicationAndOtherUrls) {
  folder.install("a.desktop");
  const auto url = Url::fromFilePath(folder.path("a.desktop").string());
  ASSERT_TRUE(entries.at(url).has_value());

  fs::remove(folder.path("a.desktop"));

  EXPECT_FALSE(entries.at(url).has_value());
  EXPECT_FALSE(entries.at(*Url::parse("https://example.org/a.desktop")).has_value());
  EXPECT_FALSE(entries.at(Url::fromFilePath("/etc/passwd")).has_value());
}

class ProgramOf : public testing::TestWithParam<std::pair<std::vector<std::string>, std::string>> {};

TEST_P(ProgramOf, IsWhatTheCommandLineRuns) { EXPECT_EQ(platform::programOf(GetParam().first), GetParam().second); }

using Words = std::vector<std::string>;
INSTANTIATE_TEST_SUITE_P(
    CommandLines, ProgramOf,
    testing::Values(std::pair(Words{}, ""), std::pair(Words{"/usr/bin/gedit", "a"}, "/usr/bin/gedit"),
                    std::pair(Words{"env", "A=b", "-i", "gedit"}, "gedit"), std::pair(Words{"env"}, ""),
                    std::pair(Words{"python3.11", "-s", "/usr/bin/meld"}, "/usr/bin/meld"),
                    std::pair(Words{"python3"}, "python3"), std::pair(Words{"/bin/sh", "/opt/run"}, "/opt/run"),
                    std::pair(Words{"flatpak", "run", "org.example.Editor"}, "")));

}  // namespace
