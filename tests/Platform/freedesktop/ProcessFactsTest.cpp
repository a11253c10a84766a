#include "Platform/freedesktop/ProcessFacts.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <fstream>

#include "Platform/freedesktop/DesktopBundleProvider.h"
#include "tests/Platform/freedesktop/ApplicationsFolder.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using platform::ProcessFacts;

/// A program that only waits, running under a name of the test's choice.
class RunningProgram final {
 public:
  explicit RunningProgram(const fs::path& path) {
    fs::copy_file("/bin/sleep", path);
    std::string name = path.string();
    std::string seconds = "60";
    const std::array<char*, 3> arguments{name.data(), seconds.data(), nullptr};
    if (posix_spawn(&m_process, path.c_str(), nullptr, nullptr, arguments.data(), environ) != 0) m_process = 0;
    // The system shows the new program a moment before it shows its arguments.
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (m_process != 0 && !isShown() && std::chrono::steady_clock::now() < deadline)
      sched_yield();
  }
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;
  ~RunningProgram() { end(); }

  void end() {
    if (m_process == 0) return;
    kill(m_process, SIGKILL);
    waitpid(m_process, nullptr, 0);
    m_process = 0;
  }
  [[nodiscard]] pid_t process() const { return m_process; }

 private:
  [[nodiscard]] bool isShown() const {
    const auto facts = ProcessFacts::read(m_process);
    return facts.has_value() && !facts->arguments.empty();
  }

  pid_t m_process = 0;
};

TEST(ProcessFacts, TellWhatARealProcessRuns) {
  const testsupport::TemporaryFolder folder;
  const auto path = folder.path() / "a viewer) 1 2";
  const RunningProgram program(path);
  ASSERT_NE(program.process(), 0);

  const auto facts = ProcessFacts::read(program.process());

  ASSERT_TRUE(facts.has_value());
  EXPECT_EQ(facts->executable, path.string());
  EXPECT_EQ(facts->arguments, (std::vector<std::string>{path.string(), "60"}));
  EXPECT_GT(facts->startTime, 0U);
  EXPECT_EQ(facts->flatpakId, "");
}

TEST(ProcessFacts, AreAbsentForAProcessThatIsGone) {
  const testsupport::TemporaryFolder folder;
  RunningProgram program(folder.path() / "viewer");
  const pid_t process = program.process();

  program.end();

  EXPECT_FALSE(ProcessFacts::read(process).has_value());
  EXPECT_FALSE(ProcessFacts::readStartTime(process).has_value());
}

class FakeProc : public testing::Test {
 protected:
  testsupport::TemporaryFolder proc;

  void put(const std::string& file, const std::string& text) const {
    const auto path = proc.path() / "7" / file;
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
  }
  std::optional<ProcessFacts> read() const { return ProcessFacts::read(7, proc.path()); }
};

const std::string stat = "7 (na) me) S 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 4711 20\n";

TEST_F(FakeProc, TellsTheFlatpak) {
  put("stat", stat);
  put("root/.flatpak-info", "[Application]\nname=org.example.Editor\n");

  EXPECT_EQ(read()->flatpakId, "org.example.Editor");
  EXPECT_EQ(read()->startTime, 4711U);
}

TEST_F(FakeProc, IsReadWithinBounds) {
  put("stat", stat);
  put("cmdline", std::string(1U << 20U, 'a'));
  put("root/.flatpak-info", "[Application]\nname=x\n#" + std::string(1U << 20U, 'a'));
  put("cgroup", std::string(1U << 20U, 'a'));

  const auto facts = read();

  EXPECT_EQ(facts->arguments.size(), 1U);
  EXPECT_EQ(facts->arguments[0].size(), 4096U);
  EXPECT_EQ(facts->flatpakId, "");
  EXPECT_EQ(facts->snapId, "");
}

TEST_F(FakeProc, DoesNotWaitForAPipeInTheProcesssOwnRoot) {
  put("stat", stat);
  fs::create_directories(proc.path() / "7/root");
  ASSERT_EQ(mkfifo((proc.path() / "7/root/.flatpak-info").c_str(), 0600), 0);

  EXPECT_EQ(read()->flatpakId, "");
}

TEST_F(FakeProc, KeepsTheFirstWordsOfManyArguments) {
  put("stat", stat);
  put("cmdline", std::string(3000, '\0'));

  EXPECT_EQ(read()->arguments.size(), 8U);
}

class DamagedStat : public FakeProc, public testing::WithParamInterface<const char*> {};

TEST_P(DamagedStat, CountsAsNoProcess) {
  put("stat", GetParam());

  EXPECT_FALSE(read().has_value());
}

INSTANTIATE_TEST_SUITE_P(Texts, DamagedStat,
                         testing::Values("", "7", "7 (a)", "7 (a) S 1 2", ")",
                                         "7 (a) S 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 x"));

TEST(DesktopBundleProviderOnProcesses, FindsTheApplicationByItsProgram) {
  const testsupport::TemporaryFolder folder;
  const testsupport::ApplicationsFolder applications;
  applications.install("org.example.Viewer.desktop", "Exec=quillmonger-test-viewer %f\n");
  RunningProgram program(folder.path() / "quillmonger-test-viewer");
  const platform::DesktopEntries entries(applications.dataFolders());
  const platform::WindowIdentity window{1, program.process(), "x", "X"};
  const platform::DesktopBundleProvider provider([&window] { return window; }, entries);

  EXPECT_EQ(provider.frontmostBundle().identifier, "org.example.Viewer");
  EXPECT_EQ(provider.frontmostBundle().identifier, "org.example.Viewer");
  program.end();
  EXPECT_FALSE(provider.frontmostBundle().identifier.has_value());
}

}  // namespace
