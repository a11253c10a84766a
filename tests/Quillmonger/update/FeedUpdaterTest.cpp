#include "Quillmonger/update/FeedUpdater.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "Quillmonger/update/UpdaterKeys.h"
#include "tests/support/FakeUpdateInterface.h"
#include "tests/support/FakeUpdateService.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
using quillmonger::UpdateFailure;
using Stage = quillmonger::UpdateStatus::Stage;
using Names = std::vector<std::string>;
using testsupport::updateTo;
namespace keys = quillmonger::updaterkeys;

class FeedUpdater : public testing::Test {
 protected:
  using Updater = quillmonger::FeedUpdater;

  [[nodiscard]] Stage stage() const { return window.status().stage; }
  [[nodiscard]] auto checkCount() const { return std::ranges::count(service.calls, "check"); }
  void passFirstDelay() { runLoop.advance(Updater::firstCheckDelay); }
  void passDay() { runLoop.advance(Updater::checkInterval); }
  // An update that was found, wanted and loaded.
  void bringToReady() {
    updater.checkForUpdates();
    service.answer(updateTo("2.0"));
    updater.download();
    service.deliver(std::filesystem::path("/cache/2.0.deb"));
  }

  testsupport::TestDefaults test;
  defaults::Defaults& settings = test.defaults;
  testsupport::VirtualRunLoop runLoop;
  testsupport::FakeUpdateService service;
  testsupport::FakeUpdateInterface window;
  Names opened;
  bool opens = true;
  std::unique_ptr<Updater> owned = std::make_unique<Updater>(
      Updater::Collaborators{settings, runLoop, service, window,
                             [this](const std::filesystem::path& file, const std::function<void()>& failed) {
                               opened.push_back(file.string());
                               if (!opens) runLoop.post(failed);
                             }});
  Updater& updater = *owned;
};

// The schedule

TEST_F(FeedUpdater, ChecksNothingUntilItIsStarted) {
  passDay();

  EXPECT_TRUE(service.calls.empty());
}

TEST_F(FeedUpdater, ChecksSoonAfterTheFirstStart) {
  updater.startUpdater();
  EXPECT_TRUE(service.calls.empty());

  passFirstDelay();

  EXPECT_EQ(checkCount(), 1);
}

TEST_F(FeedUpdater, ChecksNothingByItselfWhileTheSwitchIsOff) {
  settings.set(keys::automaticallyChecksForUpdates, false);
  updater.startUpdater();

  passDay();

  EXPECT_TRUE(service.calls.empty());
}

TEST_F(FeedUpdater, ChecksAgainADayAfterAnAnswer) {
  updater.startUpdater();
  passFirstDelay();
  service.answer(std::nullopt);

  runLoop.advance(Updater::checkInterval - Updater::tickInterval);
  EXPECT_EQ(checkCount(), 1);
  runLoop.advance(Updater::tickInterval);

  EXPECT_EQ(checkCount(), 2);
}

TEST_F(FeedUpdater, RemembersTheLastCheckFromRunToRun) {
  updater.startUpdater();
  passFirstDelay();
  service.answer(std::nullopt);
  Updater next({settings, runLoop, service, window, [](const auto&, const auto&) {}});

  owned.reset();
  next.startUpdater();
  passFirstDelay();

  EXPECT_EQ(checkCount(), 1);
}

TEST_F(FeedUpdater, ChecksAgainWithinTheHourWhenTheServerWasNotReached) {
  updater.startUpdater();
  passFirstDelay();
  service.answer(UpdateFailure::unreachable);

  runLoop.advance(Updater::tickInterval);

  EXPECT_EQ(checkCount(), 2);
}

TEST_F(FeedUpdater, ChecksWhenTheClockWasSetBackBehindTheLastCheck) {
  const auto future = foundation::Seconds((runLoop.date() + std::chrono::hours(24 * 365)).time_since_epoch()).count();
  settings.set(keys::lastUpdateCheck, future);
  updater.startUpdater();

  passFirstDelay();

  EXPECT_EQ(checkCount(), 1);
}

TEST_F(FeedUpdater, ChecksWithinTheHourOnceTheSwitchIsTurnedOn) {
  settings.set(keys::automaticallyChecksForUpdates, false);
  updater.startUpdater();
  passFirstDelay();

  settings.set(keys::automaticallyChecksForUpdates, true);
  runLoop.advance(Updater::tickInterval);

  EXPECT_EQ(checkCount(), 1);
}

TEST_F(FeedUpdater, SaysNothingOfAScheduledCheckThatFindsNothing) {
  updater.startUpdater();
  passFirstDelay();

  service.answer(std::nullopt);

  EXPECT_TRUE(window.shows.empty());
}

TEST_F(FeedUpdater, SaysNothingOfAScheduledCheckThatFails) {
  updater.startUpdater();
  passFirstDelay();

  service.answer(UpdateFailure::untrusted);

  EXPECT_TRUE(window.shows.empty());
}

TEST_F(FeedUpdater, OffersWhatAScheduledCheckFindsWithoutTakingTheKeyboard) {
  updater.startUpdater();
  passFirstDelay();

  service.answer(updateTo("2.0"));

  EXPECT_EQ(window.shows, Names{"aside"});
  EXPECT_EQ(stage(), Stage::available);
  EXPECT_EQ(window.status().update, updateTo("2.0"));
  EXPECT_FALSE(service.isDownloading());
}

TEST_F(FeedUpdater, DropsTheAnswerOfAScheduledCheckWhenTheSwitchWentOffMeanwhile) {
  updater.startUpdater();
  passFirstDelay();
  settings.set(keys::automaticallyChecksForUpdates, false);

  service.answer(updateTo("2.0"));

  EXPECT_TRUE(window.shows.empty());
}

TEST_F(FeedUpdater, DownloadsBeforeItTellsWhenThatIsSwitchedOn) {
  settings.set(keys::automaticallyDownloadsUpdates, true);
  updater.startUpdater();
  passFirstDelay();

  service.answer(updateTo("2.0"));
  EXPECT_TRUE(service.isDownloading());
  EXPECT_TRUE(window.shows.empty());
  service.deliver(std::filesystem::path("/cache/2.0.deb"));

  EXPECT_EQ(window.shows, Names{"aside"});
  EXPECT_EQ(stage(), Stage::ready);
}

TEST_F(FeedUpdater, SaysNothingOfAnAutomaticDownloadThatFails) {
  settings.set(keys::automaticallyDownloadsUpdates, true);
  updater.startUpdater();
  passFirstDelay();
  service.answer(updateTo("2.0"));

  service.deliver(UpdateFailure::damaged);

  EXPECT_TRUE(window.shows.empty());
}

TEST_F(FeedUpdater, ShowsAnAutomaticDownloadWhenTheUserAsksMeanwhile) {
  settings.set(keys::automaticallyDownloadsUpdates, true);
  updater.startUpdater();
  passFirstDelay();
  service.answer(updateTo("2.0"));

  updater.checkForUpdates();

  EXPECT_EQ(checkCount(), 1);
  EXPECT_EQ(window.shows, Names{"front"});
  EXPECT_EQ(stage(), Stage::downloading);
}

TEST_F(FeedUpdater, FindsAgainNextDayWhatLeftTheScreenWithoutAnAnswer) {
  updater.startUpdater();
  passFirstDelay();
  service.answer(updateTo("2.0"));
  window.leaveScreen();

  passDay();
  service.answer(updateTo("2.0"));

  EXPECT_EQ(window.shows, (Names{"aside", "aside"}));
}

TEST_F(FeedUpdater, ChecksNothingByItselfWhileItsWindowWaitsForAnAnswer) {
  updater.startUpdater();
  passFirstDelay();
  service.answer(updateTo("2.0"));

  passDay();

  EXPECT_EQ(checkCount(), 1);
}

// The user's own check

TEST_F(FeedUpdater, CanCheckFromTheStart) { EXPECT_TRUE(updater.canCheckForUpdates().value()); }

TEST_F(FeedUpdater, CannotCheckWhileACheckIsUnderWay) {
  updater.checkForUpdates();
  EXPECT_FALSE(updater.canCheckForUpdates().value());

  service.answer(std::nullopt);

  EXPECT_TRUE(updater.canCheckForUpdates().value());
}

TEST_F(FeedUpdater, CannotCheckWhileAScheduledCheckIsUnderWay) {
  updater.startUpdater();
  passFirstDelay();

  updater.checkForUpdates();

  EXPECT_FALSE(updater.canCheckForUpdates().value());
  EXPECT_EQ(checkCount(), 1);
}

TEST_F(FeedUpdater, ShowsTheUserThatItAsks) {
  updater.checkForUpdates();

  EXPECT_EQ(window.shows, Names{"front"});
  EXPECT_EQ(stage(), Stage::checking);
}

TEST_F(FeedUpdater, TellsTheUserThatThereIsNothingNewer) {
  updater.checkForUpdates();

  service.answer(std::nullopt);

  EXPECT_EQ(stage(), Stage::upToDate);
  EXPECT_TRUE(window.isVisible());
}

TEST_F(FeedUpdater, TellsTheUserWhyTheCheckFailed) {
  updater.checkForUpdates();

  service.answer(UpdateFailure::untrusted);

  EXPECT_EQ(stage(), Stage::failed);
  EXPECT_EQ(window.status().failure, UpdateFailure::untrusted);
}

TEST_F(FeedUpdater, GivesUpOnAServerThatSaysNothing) {
  updater.checkForUpdates();

  runLoop.advance(Updater::stallLimit);

  EXPECT_EQ(stage(), Stage::failed);
  EXPECT_EQ(window.status().failure, UpdateFailure::unreachable);
  EXPECT_FALSE(service.isChecking());
  EXPECT_TRUE(updater.canCheckForUpdates().value());
}

TEST_F(FeedUpdater, EndsTheCheckThatTheUserCancels) {
  updater.checkForUpdates();

  updater.close();

  EXPECT_FALSE(service.isChecking());
  EXPECT_FALSE(window.isVisible());
  EXPECT_TRUE(updater.canCheckForUpdates().value());
}

TEST_F(FeedUpdater, ChecksAnewAfterAnAnswerThatHadNothingNewer) {
  updater.checkForUpdates();
  service.answer(std::nullopt);

  updater.checkForUpdates();

  EXPECT_EQ(checkCount(), 2);
  EXPECT_EQ(stage(), Stage::checking);
}

TEST_F(FeedUpdater, ChecksWhenTheUserAsksThoughItIsNotStarted) {
  updater.checkForUpdates();

  EXPECT_EQ(checkCount(), 1);
}

TEST_F(FeedUpdater, BringsBackWhatWaitsForTheUser) {
  updater.checkForUpdates();
  service.answer(updateTo("2.0"));
  window.leaveScreen();

  updater.checkForUpdates();

  EXPECT_EQ(checkCount(), 1);
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(stage(), Stage::available);
}

// The user's answers

TEST_F(FeedUpdater, OffersASkippedVersionNeverAgainByItself) {
  updater.startUpdater();
  passFirstDelay();
  service.answer(updateTo("2.0"));
  updater.skip();

  passDay();
  service.answer(updateTo("2.0"));

  EXPECT_EQ(window.shows, Names{"aside"});
}

TEST_F(FeedUpdater, SkipsAVersionThatWasDownloadedByItself) {
  settings.set(keys::automaticallyDownloadsUpdates, true);
  updater.startUpdater();
  passFirstDelay();
  service.answer(updateTo("2.0"));
  service.deliver(std::filesystem::path("/cache/2.0.deb"));

  updater.skip();

  EXPECT_EQ(settings[keys::skippedUpdate], "2.0");
  EXPECT_FALSE(window.isVisible());
}

TEST_F(FeedUpdater, OffersTheVersionAfterASkippedOne) {
  settings.set(keys::skippedUpdate, std::string("2.0"));
  updater.startUpdater();
  passFirstDelay();

  service.answer(updateTo("2.1"));

  EXPECT_EQ(stage(), Stage::available);
}

TEST_F(FeedUpdater, OffersASkippedVersionToAUserWhoAsks) {
  settings.set(keys::skippedUpdate, std::string("2.0"));
  updater.checkForUpdates();

  service.answer(updateTo("2.0"));

  EXPECT_EQ(stage(), Stage::available);
}

TEST_F(FeedUpdater, DownloadsOnlyWhatTheUserAgreedTo) {
  settings.set(keys::automaticallyDownloadsUpdates, true);
  updater.checkForUpdates();
  service.answer(updateTo("2.0"));
  EXPECT_FALSE(service.isDownloading());

  updater.download();

  EXPECT_TRUE(service.isDownloading());
  EXPECT_EQ(stage(), Stage::downloading);
}

TEST_F(FeedUpdater, ShowsHowFarTheDownloadIs) {
  updater.checkForUpdates();
  service.answer(updateTo("2.0"));
  updater.download();

  service.progress(250);

  EXPECT_EQ(window.status().received, 250U);
}

TEST_F(FeedUpdater, EndsTheDownloadThatTheUserCancels) {
  updater.checkForUpdates();
  service.answer(updateTo("2.0"));
  updater.download();

  updater.close();

  EXPECT_FALSE(service.isDownloading());
  EXPECT_FALSE(window.isVisible());
}

TEST_F(FeedUpdater, GivesUpOnADownloadThatStandsStill) {
  updater.checkForUpdates();
  service.answer(updateTo("2.0"));
  updater.download();
  runLoop.advance(Updater::stallLimit - 1s);
  service.progress(500);
  runLoop.advance(Updater::stallLimit - 1s);
  EXPECT_EQ(stage(), Stage::downloading);

  runLoop.advance(1s);

  EXPECT_EQ(stage(), Stage::failed);
  EXPECT_EQ(window.status().failure, UpdateFailure::unreachable);
  EXPECT_FALSE(service.isDownloading());
}

TEST_F(FeedUpdater, OpensTheFileOnlyWhenTheUserAgrees) {
  updater.checkForUpdates();
  service.answer(updateTo("2.0"));
  updater.download();
  service.deliver(std::filesystem::path("/cache/2.0.deb"));
  EXPECT_EQ(stage(), Stage::ready);
  EXPECT_TRUE(opened.empty());

  updater.install();

  EXPECT_EQ(opened, Names{"/cache/2.0.deb"});
  EXPECT_FALSE(window.isVisible());
}

TEST_F(FeedUpdater, TellsWhenNoProgramOpensTheFile) {
  opens = false;
  bringToReady();

  updater.install();
  runLoop.runPosted();

  EXPECT_EQ(stage(), Stage::failed);
  EXPECT_EQ(window.status().failure, UpdateFailure::notOpened);
  EXPECT_TRUE(window.isVisible());
}

TEST_F(FeedUpdater, LeavesAnOpenedFilesFailureAloneOnceItChecksAgain) {
  opens = false;
  bringToReady();
  updater.install();

  updater.checkForUpdates();
  runLoop.runPosted();

  EXPECT_EQ(stage(), Stage::checking);
}

TEST_F(FeedUpdater, TellsWhyADownloadFailed) {
  updater.checkForUpdates();
  service.answer(updateTo("2.0"));
  updater.download();

  service.deliver(UpdateFailure::damaged);

  EXPECT_EQ(stage(), Stage::failed);
  EXPECT_EQ(window.status().failure, UpdateFailure::damaged);
}

TEST_F(FeedUpdater, TakesNoAnswerThatTheWindowDoesNotOffer) {
  updater.download();
  updater.install();
  updater.skip();
  updater.checkForUpdates();
  updater.download();
  updater.install();
  updater.skip();

  EXPECT_EQ(service.calls, Names{"check"});
  EXPECT_TRUE(opened.empty());
  EXPECT_EQ(settings[keys::skippedUpdate], "");
}

TEST_F(FeedUpdater, BringsADownloadToItsEndWhoseWindowLeftTheScreen) {
  updater.checkForUpdates();
  service.answer(updateTo("2.0"));
  updater.download();
  window.leaveScreen();

  service.deliver(std::filesystem::path("/cache/2.0.deb"));

  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(stage(), Stage::ready);
}

TEST_F(FeedUpdater, EndsItsWorkWithItself) {
  updater.checkForUpdates();

  owned.reset();

  EXPECT_FALSE(service.isChecking());
}

}  // namespace
