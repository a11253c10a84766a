#include "Platform/freedesktop/AutostartEntry.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include "Platform/freedesktop/AutostartFile.h"
#include "Platform/freedesktop/DesktopEntry.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using Status = launchatlogin::AppService::Status;

// While it lives, this process can write nothing.
class FullDisk final {
 public:
  FullDisk() : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &m_limit);
    const rlimit nothing{0, m_limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &nothing);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &m_limit);
    std::signal(SIGXFSZ, m_handler);
  }

 private:
  void (*m_handler)(int);
  rlimit m_limit{};
};

class AutostartEntry : public testing::Test {
 protected:
  AutostartEntry() { makeProgram(program); }

  static void makeProgram(const std::filesystem::path& path) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path) << "#!/bin/sh\n";
    chmod(path.c_str(), S_IRWXU);
  }
  static void write(const std::filesystem::path& path, const std::string& lines) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path) << "[Desktop Entry]\nType=Application\nName=Mine\n" << lines;
  }
  [[nodiscard]] std::string content() const {
    std::ifstream file(own);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  [[nodiscard]] bool contains(const std::string& line) const {
    return content().find(line + "\n") != std::string::npos;
  }
  [[nodiscard]] std::string execOf(const std::filesystem::path& path) const { return "Exec=\"" + path.string() + "\""; }

  testsupport::TemporaryFolder folder;
  std::filesystem::path program = folder.path() / "bin/quillmonger-app";
  std::filesystem::path config = folder.path() / "config";
  std::filesystem::path systemConfig = folder.path() / "xdg";
  std::filesystem::path own = config / "autostart/quillmonger.desktop";
  std::filesystem::path ofSystem = systemConfig / "autostart/quillmonger.desktop";
  platform::AutostartEntry entry{{config, systemConfig}, program};
};

TEST_F(AutostartEntry, IsNotRegisteredWithoutAFile) { EXPECT_EQ(entry.status(), Status::notRegistered); }

TEST_F(AutostartEntry, MakesTheFolderAndAnEntryThatStartsTheProgram) {
  ASSERT_TRUE(entry.registerApp());

  EXPECT_EQ(entry.status(), Status::enabled);
  EXPECT_TRUE(contains("Type=Application"));
  EXPECT_TRUE(contains("Name=Quillmonger"));
  EXPECT_TRUE(contains(execOf(program)));
}

TEST_F(AutostartEntry, RemovesItsFileWhenItIsUnregistered) {
  ASSERT_TRUE(entry.registerApp());

  ASSERT_TRUE(entry.unregisterApp());

  EXPECT_EQ(entry.status(), Status::notRegistered);
  EXPECT_FALSE(std::filesystem::exists(own));
}

TEST_F(AutostartEntry, HasNothingToDoWhenItIsUnregisteredTwice) {
  EXPECT_TRUE(entry.unregisterApp());
  EXPECT_FALSE(std::filesystem::exists(config));
}

TEST_F(AutostartEntry, PointsAtTheProgramWhereItIsNow) {
  const auto before = folder.path() / "old/quillmonger-app";
  makeProgram(before);
  ASSERT_TRUE(platform::AutostartEntry({config}, before).registerApp());

  ASSERT_TRUE(entry.registerApp());

  EXPECT_TRUE(contains(execOf(program)));
}

TEST_F(AutostartEntry, IsRemovedAlsoWhereItPointsAtAnEarlierPlace) {
  ASSERT_TRUE(platform::AutostartEntry({config}, folder.path() / "old/quillmonger-app").registerApp());

  ASSERT_TRUE(entry.unregisterApp());

  EXPECT_FALSE(std::filesystem::exists(own));
}

TEST_F(AutostartEntry, DoesNotCountWhenItsProgramIsGone) {
  ASSERT_TRUE(entry.registerApp());

  std::filesystem::remove(program);

  EXPECT_EQ(entry.status(), Status::notRegistered);
}

TEST_F(AutostartEntry, StartsAProgramWhosePathNeedsQuoting) {
  const auto strange = folder.path() / "50% \"of\" $HOME `x` \\ done/quillmonger-app";
  makeProgram(strange);
  platform::AutostartEntry ofStrange({config}, strange);

  ASSERT_TRUE(ofStrange.registerApp());

  // "%" is a field code's sign to the desktop, "\" one of the file's own.
  const auto parent = folder.path().string();
  EXPECT_TRUE(
      contains("Exec=\"" + parent + "/50%% \\\\\"of\\\\\" \\\\$HOME \\\\`x\\\\` \\\\\\\\ done/quillmonger-app\""));
  EXPECT_EQ(ofStrange.status(), Status::enabled);
}

class DisabledAutostartEntry : public AutostartEntry, public testing::WithParamInterface<const char*> {};

TEST_P(DisabledAutostartEntry, IsNotRegistered) {
  write(own, execOf(program) + "\n" + GetParam() + "\n");

  EXPECT_EQ(entry.status(), Status::notRegistered);
}

TEST_P(DisabledAutostartEntry, IsEnabledAgainWithAllElseThatTheUserWrote) {
  write(own, execOf(program) + "\n" + GetParam() + "\n# later, please\nX-Mine=7\nName[de]=Meins\n");

  ASSERT_TRUE(entry.registerApp());

  EXPECT_EQ(entry.status(), Status::enabled);
  EXPECT_TRUE(contains("# later, please"));
  EXPECT_TRUE(contains("X-Mine=7"));
  EXPECT_TRUE(contains("Name[de]=Meins"));
}

INSTANTIATE_TEST_SUITE_P(ByTheDesktop, DisabledAutostartEntry,
                         testing::Values("Hidden=true", "X-GNOME-Autostart-enabled=false",
                                         "X-MATE-Autostart-enabled=false"),
                         [](const auto& present) {
                           const std::string line = present.param;
                           return line.starts_with("H") ? "Hidden" : line.starts_with("X-G") ? "Gnome" : "Mate";
                         });

TEST_F(AutostartEntry, IsHiddenRatherThanRemovedWhenTheUserEditedIt) {
  write(own, execOf(program) + "\nX-GNOME-Autostart-Delay=5\n");

  ASSERT_TRUE(entry.unregisterApp());

  EXPECT_EQ(entry.status(), Status::notRegistered);
  EXPECT_TRUE(contains("Hidden=true"));
  EXPECT_TRUE(contains("X-GNOME-Autostart-Delay=5"));
}

TEST_F(AutostartEntry, KeepsTheUsersOwnCommandThroughOffAndOn) {
  const std::string command = "Exec=env QT_SCALE_FACTOR=2 " + program.string();
  write(own, command + "\n");

  ASSERT_TRUE(entry.unregisterApp());
  ASSERT_TRUE(entry.registerApp());

  EXPECT_EQ(entry.status(), Status::enabled);
  EXPECT_TRUE(contains(command));
}

TEST_F(AutostartEntry, ReplacesACommandThatCannotBeRun) {
  write(own, "Exec=/gone/forever --quietly\n");
  EXPECT_EQ(entry.status(), Status::notRegistered);

  ASSERT_TRUE(entry.registerApp());

  EXPECT_EQ(entry.status(), Status::enabled);
  EXPECT_TRUE(contains(execOf(program)));
}

TEST_F(AutostartEntry, ReplacesTheProgramsOwnCommandWithAFieldForUrls) {
  write(own, "Exec=/gone/quillmonger-app %U\n");

  ASSERT_TRUE(entry.registerApp());

  EXPECT_TRUE(contains(execOf(program)));
}

TEST_F(AutostartEntry, CountsTheSystemsEntryWhereTheUserHasNone) {
  write(ofSystem, execOf(program) + "\n");

  EXPECT_EQ(entry.status(), Status::enabled);
}

TEST_F(AutostartEntry, HidesTheSystemsEntryFromTheUsersFolder) {
  write(ofSystem, execOf(program) + "\n");

  ASSERT_TRUE(entry.unregisterApp());
  EXPECT_EQ(entry.status(), Status::notRegistered);
  EXPECT_TRUE(std::filesystem::exists(ofSystem));

  ASSERT_TRUE(entry.registerApp());
  EXPECT_EQ(entry.status(), Status::enabled);
}

TEST_F(AutostartEntry, TakesADamagedFileForNoRegistrationAndReplacesIt) {
  std::filesystem::create_directories(own.parent_path());
  std::ofstream(own) << "no entry at all";
  EXPECT_EQ(entry.status(), Status::notRegistered);

  ASSERT_TRUE(entry.registerApp());

  EXPECT_EQ(entry.status(), Status::enabled);
}

TEST_F(AutostartEntry, TakesALinkThatLeadsNowhereForNoRegistration) {
  std::filesystem::create_directories(own.parent_path());
  std::filesystem::create_symlink(folder.path() / "gone", own);

  EXPECT_EQ(entry.status(), Status::notRegistered);
}

TEST_F(AutostartEntry, WritesThroughTheLinkOfAUserWhoKeepsSettingsElsewhere) {
  const auto target = folder.path() / "dotfiles/quillmonger.desktop";
  write(target, "Exec=env A=1 " + program.string() + "\nHidden=true\n");
  std::filesystem::create_directories(own.parent_path());
  std::filesystem::create_symlink(target, own);

  ASSERT_TRUE(entry.registerApp());

  EXPECT_TRUE(std::filesystem::is_symlink(own));
  EXPECT_EQ(entry.status(), Status::enabled);
}

TEST_F(AutostartEntry, SaysWhatIsInTheWayOfTheFolder) {
  std::filesystem::create_directories(config);
  std::ofstream(config / "autostart") << "a file";

  const auto outcome = entry.registerApp();

  ASSERT_FALSE(outcome);
  EXPECT_NE(outcome.error().message.find("autostart"), std::string::npos) << outcome.error().message;
  EXPECT_EQ(entry.status(), Status::notRegistered);
}

TEST_F(AutostartEntry, SaysThatTheFolderIsALinkToItself) {
  std::filesystem::create_directories(config);
  std::filesystem::create_symlink(config / "autostart", config / "autostart");

  EXPECT_FALSE(entry.registerApp());
  EXPECT_FALSE(entry.unregisterApp());
  EXPECT_FALSE(platform::AutostartFile(program).write(own));

  EXPECT_EQ(entry.status(), Status::notRegistered);
}

TEST_F(AutostartEntry, NeitherReplacesNorRemovesAFileThatItCannotRead) {
  write(own, execOf(program) + "\n# " + std::string(platform::DesktopEntry::sizeLimit, 'x') + "\n");
  const auto before = content();

  EXPECT_FALSE(entry.registerApp());
  EXPECT_FALSE(entry.unregisterApp());

  EXPECT_EQ(content(), before);
}

class RestrictedAutostartEntry : public AutostartEntry, public testing::WithParamInterface<const char*> {
 protected:
  RestrictedAutostartEntry() { setenv("XDG_CURRENT_DESKTOP", "Usual:Base", 1); }
  ~RestrictedAutostartEntry() override { unsetenv("XDG_CURRENT_DESKTOP"); }
};

TEST_P(RestrictedAutostartEntry, IsNotRegisteredUntilTheUserWantsItHereToo) {
  write(own, execOf(program) + "\n" + GetParam() + "\n");
  EXPECT_EQ(entry.status(), Status::notRegistered);

  ASSERT_TRUE(entry.registerApp());

  EXPECT_EQ(entry.status(), Status::enabled);
}

INSTANTIATE_TEST_SUITE_P(By, RestrictedAutostartEntry,
                         testing::Values("OnlyShowIn=Other;", "NotShowIn=Other;Base;", "TryExec=/nowhere/missing"));

class AllowedAutostartEntry : public RestrictedAutostartEntry {};

TEST_P(AllowedAutostartEntry, IsRegistered) {
  write(own, execOf(program) + "\n" + GetParam() + "\n");

  EXPECT_EQ(entry.status(), Status::enabled);
  ASSERT_TRUE(entry.registerApp());

  EXPECT_TRUE(contains(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(By, AllowedAutostartEntry,
                         testing::Values("OnlyShowIn=Other;Usual;", "NotShowIn=Other;", "TryExec=sh"));

TEST_F(AutostartEntry, LosesNothingOnAFullDisk) {
  write(own, execOf(program) + "\nHidden=true\nX-Mine=7\n");
  const auto before = content();
  const FullDisk disk;

  EXPECT_FALSE(entry.registerApp());

  EXPECT_EQ(content(), before);
}

}  // namespace
