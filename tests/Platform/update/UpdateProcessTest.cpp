#include "Platform/update/UpdateProcess.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>

#include <QTest>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>

#include "Quillmonger/update/UpdateAnswer.h"
#include "tests/support/FakeUpdateService.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using quillmonger::UpdateFailure;
using Service = quillmonger::UpdateService;

// The program that asks the feed is a script of the test's.
class UpdateProcess : public testing::Test {
 protected:
  void setScript(const std::string& lines) const {
    std::ofstream(program) << "#!/bin/sh\necho \"$*\" >> '" << calls.string() << "'\n" << lines;
    chmod(program.c_str(), S_IRWXU);
  }
  [[nodiscard]] std::string called() const {
    std::ifstream file(calls);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::optional<Service::CheckResult> check() {
    std::optional<Service::CheckResult> result;
    const auto hold = service.check([&result](const auto& answer) { result = answer; });
    EXPECT_FALSE(result.has_value()) << "the answer comes in a later turn";
    EXPECT_TRUE(QTest::qWaitFor([&result] { return result.has_value(); }));
    return result;
  }
  std::optional<Service::DownloadResult> download(const quillmonger::Update& update) {
    std::optional<Service::DownloadResult> result;
    const auto hold = service.download(
        update, [this](std::uint64_t received) { progress.insert(received); },
        [&result](const auto& answer) { result = answer; });
    EXPECT_FALSE(result.has_value()) << "the answer comes in a later turn";
    EXPECT_TRUE(QTest::qWaitFor([&result] { return result.has_value(); }));
    return result;
  }

  testsupport::TemporaryFolder folder;
  std::filesystem::path program = folder.path() / "helper";
  std::filesystem::path calls = folder.path() / "calls";
  std::filesystem::path downloads = folder.path() / "cache/updates";
  std::set<std::uint64_t> progress;
  platform::UpdateProcess service{
      {program, {*foundation::Url::parse("https://example.org/feed.xml"), "the key"}, "1.2", downloads}};
};

TEST_F(UpdateProcess, AsksTheFeedAndGivesItsAnswer) {
  setScript("printf '" + quillmonger::updateanswer::encode(testsupport::updateTo("2.0")) + "'");

  EXPECT_EQ(check(), Service::CheckResult(testsupport::updateTo("2.0")));
  EXPECT_EQ(called(), "check https://example.org/feed.xml the key 1.2\n");
}

TEST_F(UpdateProcess, GivesTheAnswerThatThereIsNothingNewer) {
  setScript("echo none");

  EXPECT_EQ(check(), Service::CheckResult(std::nullopt));
}

TEST_F(UpdateProcess, SaysWhyThereIsNoAnswer) {
  setScript("exit 11");

  EXPECT_EQ(check(), Service::CheckResult(UpdateFailure::untrusted));
}

TEST_F(UpdateProcess, TakesNoNonsenseForAnAnswer) {
  setScript("echo nonsense");

  EXPECT_EQ(check(), Service::CheckResult(UpdateFailure::untrusted));
}

TEST_F(UpdateProcess, HasNoAnswerOfAProgramThatDied) {
  setScript("echo none; kill -9 $$");

  EXPECT_EQ(check(), Service::CheckResult(UpdateFailure::unreachable));
}

TEST_F(UpdateProcess, HasNoAnswerWithoutItsProgram) {
  EXPECT_EQ(check(), Service::CheckResult(UpdateFailure::unreachable));
}

TEST_F(UpdateProcess, AnswersNothingOnceTheHoldIsGone) {
  setScript("echo $$ > '" + (folder.path() / "pid").string() + "'; exec sleep 100");
  bool isAnswered = false;
  auto hold = service.check([&isAnswered](const auto&) { isAnswered = true; });
  pid_t helper = 0;
  ASSERT_TRUE(QTest::qWaitFor([&] { return bool(std::ifstream(folder.path() / "pid") >> helper); }));

  hold = {};

  EXPECT_TRUE(QTest::qWaitFor([helper] { return kill(helper, 0) != 0; }));
  EXPECT_FALSE(isAnswered);
}

TEST_F(UpdateProcess, StoresAFileUnderTheNameThatItsUrlGivesIt) {
  setScript("echo 400; echo 1000");

  EXPECT_EQ(download(testsupport::updateTo("2.0")), Service::DownloadResult(downloads / "2.0.deb"));
  EXPECT_EQ(called(), "download https://example.org/2.0.deb 1000 " + std::string(64, 'a') + " " +
                          (downloads / "2.0.deb").string() + "\n");
  EXPECT_TRUE(progress.contains(1000));
}

class StrangeFileName : public UpdateProcess, public testing::WithParamInterface<const char*> {};

TEST_P(StrangeFileName, IsReplacedByTheVersion) {
  setScript("");
  auto update = testsupport::updateTo("2.0");
  update.url = *foundation::Url::parse(GetParam());

  EXPECT_EQ(download(update), Service::DownloadResult(downloads / "quillmonger-2.0"));
}

INSTANTIATE_TEST_SUITE_P(Of, StrangeFileName,
                         testing::Values("https://example.org/", "https://example.org/..",
                                         "https://example.org/.profile", "https://example.org/a%2Fb",
                                         "https://example.org/x/?y=/z.deb"));

TEST_F(UpdateProcess, LeavesNoOlderDownloads) {
  setScript("");
  std::filesystem::create_directories(downloads);
  chmod(downloads.c_str(), S_IRWXU);
  std::ofstream(downloads / "1.9.deb") << "old";
  std::ofstream(downloads / "2.0.deb") << "perhaps the very one";

  download(testsupport::updateTo("2.0"));

  EXPECT_FALSE(std::filesystem::exists(downloads / "1.9.deb"));
  EXPECT_TRUE(std::filesystem::exists(downloads / "2.0.deb"));
}

TEST_F(UpdateProcess, StoresNothingWhereOthersMayWrite) {
  setScript("");
  std::filesystem::create_directories(downloads);
  chmod(downloads.c_str(), S_IRWXU | S_IRWXO);

  EXPECT_EQ(download(testsupport::updateTo("2.0")), Service::DownloadResult(UpdateFailure::notWritten));
  EXPECT_EQ(called(), "");
}

TEST_F(UpdateProcess, AnswersNothingOnceTheHoldIsGoneAlsoWhereNothingCouldBegin) {
  std::filesystem::create_directories(downloads);
  chmod(downloads.c_str(), S_IRWXU | S_IRWXO);
  bool isAnswered = false;
  const auto answer = [&isAnswered](const auto&) { isAnswered = true; };

  service
      .download(
          testsupport::updateTo("2.0"), [](std::uint64_t) {}, answer)
      .cancel();
  service.check(answer).cancel();
  QCoreApplication::processEvents();

  EXPECT_FALSE(isAnswered);
}

TEST_F(UpdateProcess, LeavesNoPartOfAFileOnceTheHoldIsGone) {
  setScript("echo part > \"$5.part\"; echo 5; exec sleep 100");
  auto hold = service.download(
      testsupport::updateTo("2.0"), [this](std::uint64_t received) { progress.insert(received); }, [](const auto&) {});
  ASSERT_TRUE(QTest::qWaitFor([this] { return progress.contains(5); }));
  ASSERT_TRUE(std::filesystem::exists(downloads / "2.0.deb.part"));

  hold = {};

  EXPECT_TRUE(std::filesystem::is_empty(downloads));
}

TEST_F(UpdateProcess, LeavesNoDownloadsWhereNothingIsNewer) {
  setScript("echo none");
  std::filesystem::create_directories(downloads);
  chmod(downloads.c_str(), S_IRWXU);
  std::ofstream(downloads / "1.2.deb") << "installed";

  check();

  EXPECT_TRUE(std::filesystem::is_empty(downloads));
}

TEST_F(UpdateProcess, KeepsADownloadThatIsStillOffered) {
  setScript("printf '" + quillmonger::updateanswer::encode(testsupport::updateTo("2.0")) + "'");
  std::filesystem::create_directories(downloads);
  chmod(downloads.c_str(), S_IRWXU);
  std::ofstream(downloads / "2.0.deb") << "perhaps the very one";

  check();

  EXPECT_TRUE(std::filesystem::exists(downloads / "2.0.deb"));
}

TEST_F(UpdateProcess, StoresNothingOutsideItsFolderWhateverTheVersionIs) {
  setScript("");
  auto update = testsupport::updateTo("../../2.0");
  update.url = *foundation::Url::parse("https://example.org/");

  EXPECT_EQ(download(update), Service::DownloadResult(downloads / "quillmonger-update"));
}

TEST_F(UpdateProcess, EndsAnAnswerWithoutEnd) {
  setScript("exec yes");

  EXPECT_EQ(check(), Service::CheckResult(UpdateFailure::untrusted));
}

TEST_F(UpdateProcess, SaysWhyThereIsNoFile) {
  setScript("exit 12");

  EXPECT_EQ(download(testsupport::updateTo("2.0")), Service::DownloadResult(UpdateFailure::damaged));
}

}  // namespace
