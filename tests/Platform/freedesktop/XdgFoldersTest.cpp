#include "Platform/freedesktop/XdgFolders.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <map>

#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using platform::ensurePrivateFolder;
using platform::XdgFolders;

XdgFolders foldersOf(const std::map<std::string, std::string>& environment) {
  return XdgFolders::fromEnvironment([&](const std::string& name) -> std::optional<std::string> {
    const auto found = environment.find(name);
    return found == environment.end() ? std::nullopt : std::optional(found->second);
  });
}

TEST(XdgFolders, LieInTheHomeFolderWhenNothingIsSet) {
  const auto folders = foldersOf({{"HOME", "/home/user"}});

  EXPECT_EQ(folders.config, "/home/user/.config/quillmonger");
  EXPECT_EQ(folders.data, "/home/user/.local/share/quillmonger");
  EXPECT_EQ(folders.cache, "/home/user/.cache/quillmonger");
  EXPECT_EQ(folders.runtime, "/tmp/quillmonger-" + std::to_string(getuid()));
  ASSERT_GE(folders.dataSearch.size(), 3U);
  EXPECT_EQ(folders.dataSearch[0], "/home/user/.local/share");
  EXPECT_EQ(folders.dataSearch[1], "/usr/local/share");
  EXPECT_EQ(folders.dataSearch[2], "/usr/share");
}

TEST(XdgFolders, FollowTheEnvironment) {
  const auto folders = foldersOf({{"HOME", "/home/user"},
                                  {"XDG_CONFIG_HOME", "/c"},
                                  {"XDG_DATA_HOME", "/d"},
                                  {"XDG_RUNTIME_DIR", "/r"},
                                  {"XDG_CACHE_HOME", "/k"},
                                  {"XDG_DATA_DIRS", "/one:/two"}});

  EXPECT_EQ(folders.config, "/c/quillmonger");
  EXPECT_EQ(folders.data, "/d/quillmonger");
  EXPECT_EQ(folders.cache, "/k/quillmonger");
  EXPECT_EQ(folders.runtime, "/r/quillmonger");
  EXPECT_EQ(folders.dataSearch[0], "/d");
  EXPECT_EQ(folders.dataSearch[1], "/one");
  EXPECT_EQ(folders.dataSearch[2], "/two");
}

TEST(XdgFolders, CountARelativePathAsUnset) {
  const auto folders = foldersOf(
      {{"HOME", "/home/user"}, {"XDG_CONFIG_HOME", "c"}, {"XDG_RUNTIME_DIR", "r"}, {"XDG_DATA_DIRS", "one::/two"}});

  EXPECT_EQ(folders.config, "/home/user/.config/quillmonger");
  EXPECT_EQ(folders.runtime, "/tmp/quillmonger-" + std::to_string(getuid()));
  EXPECT_EQ(folders.dataSearch[1], "/two");
}

TEST(XdgFolders, NameTheFoldersOfFlatpakAndSnapOnce) {
  const auto folders = foldersOf({{"HOME", "/h"}, {"XDG_DATA_DIRS", "/var/lib/flatpak/exports/share:/usr/share"}});

  const auto count = [&](const char* path) {
    return std::count(folders.dataSearch.begin(), folders.dataSearch.end(), path);
  };
  EXPECT_EQ(count("/var/lib/flatpak/exports/share"), 1);
  EXPECT_EQ(count("/h/.local/share/flatpak/exports/share"), 1);
  EXPECT_EQ(count("/var/lib/snapd/desktop"), 1);
}

TEST(XdgFolders, LookForTheSettingsOfOthersInTheUsersFolderFirst) {
  using Paths = std::vector<fs::path>;
  EXPECT_EQ(foldersOf({{"HOME", "/h"}}).configSearch, (Paths{"/h/.config", "/etc/xdg"}));
  EXPECT_EQ(foldersOf({{"HOME", "/h"}, {"XDG_CONFIG_HOME", "/c"}, {"XDG_CONFIG_DIRS", "/one:two:/three"}}).configSearch,
            (Paths{"/c", "/one", "/three"}));
}

TEST(PrivateFolder, IsMadeForItsUserAlone) {
  const testsupport::TemporaryFolder folder;
  const auto path = folder.path() / "a/b";

  EXPECT_TRUE(ensurePrivateFolder(path));
  EXPECT_TRUE(ensurePrivateFolder(path));

  EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_all);
}

TEST(PrivateFolder, IsNeverASymbolicLink) {
  const testsupport::TemporaryFolder folder;
  fs::create_directory(folder.path() / "real");
  fs::permissions(folder.path() / "real", fs::perms::owner_all);
  fs::create_symlink(folder.path() / "real", folder.path() / "link");

  EXPECT_FALSE(ensurePrivateFolder(folder.path() / "link"));
}

TEST(PrivateFolder, IsNoFile) {
  const testsupport::TemporaryFolder folder;
  std::ofstream(folder.path() / "file") << "x";

  EXPECT_FALSE(ensurePrivateFolder(folder.path() / "file"));
}

TEST(PrivateFolder, IsNotOpenToOthers) {
  const testsupport::TemporaryFolder folder;
  fs::create_directory(folder.path() / "open");
  fs::permissions(folder.path() / "open", fs::perms::owner_all | fs::perms::group_read);

  EXPECT_FALSE(ensurePrivateFolder(folder.path() / "open"));
}

}  // namespace
