#include "Quillmonger/update/FeedUpdater.h"

#include <chrono>
#include <utility>

#include "Quillmonger/update/UpdaterKeys.h"

namespace quillmonger {

namespace {

double secondsSince1970(foundation::Date date) { return foundation::Seconds(date.time_since_epoch()).count(); }

}  // namespace

FeedUpdater::FeedUpdater(Collaborators collaborators) : m_with(std::move(collaborators)) {}

void FeedUpdater::startUpdater() {
  m_ticks = m_with.runLoop.after(firstCheckDelay, [this] {
    m_ticks = m_with.runLoop.every(tickInterval, [this] { tick(); });
    tick();
  });
}

void FeedUpdater::tick() {
  if (!isCheckDue()) return;
  const bool isBusy = m_status && (m_status->stage == Stage::checking || m_status->stage == Stage::downloading);
  // What went with the other windows, without an answer, is found again.
  if (!isBusy && !m_with.interface.isVisible()) check(Asker::schedule);
}

bool FeedUpdater::isCheckDue() const {
  if (!m_with.defaults[updaterkeys::automaticallyChecksForUpdates]) return false;
  const double passed = secondsSince1970(m_with.runLoop.date()) - m_with.defaults[updaterkeys::lastUpdateCheck];
  // A check of the future was made before the clock was set back.
  return passed < 0 || passed >= checkInterval.count();
}

void FeedUpdater::checkForUpdates() {
  if (!m_canCheckForUpdates.value()) return;
  const bool waitsForUser = m_status && m_status->update;
  m_asker = Asker::user;
  if (waitsForUser) {
    present();
  } else {
    check(Asker::user);
  }
}

void FeedUpdater::check(Asker asker) {
  m_asker = asker;
  m_canCheckForUpdates.set(false);
  become({.stage = Stage::checking});
  if (asker == Asker::user) present();
  watchForStall();
  m_work = m_with.service.check([this](const auto& result) { finishCheck(result); });
}

void FeedUpdater::finishCheck(const UpdateService::CheckResult& result) {
  endWork();
  if (const auto* failure = std::get_if<UpdateFailure>(&result)) return fail(*failure);
  m_with.defaults.set(updaterkeys::lastUpdateCheck, secondsSince1970(m_with.runLoop.date()));
  if (const auto& update = std::get<0>(result)) return offer(*update);
  if (m_asker == Asker::schedule) return reset();
  become({.stage = Stage::upToDate});
  present();
}

void FeedUpdater::offer(const Update& update) {
  const auto& settings = m_with.defaults;
  if (m_asker == Asker::schedule) {
    const bool isUnwanted =
        settings[updaterkeys::skippedUpdate] == update.version || !settings[updaterkeys::automaticallyChecksForUpdates];
    if (isUnwanted) return reset();
    if (settings[updaterkeys::automaticallyDownloadsUpdates]) return fetch(update);
  }
  become({.stage = Stage::available, .update = update});
  present();
}

void FeedUpdater::download() {
  if (m_status && m_status->stage == Stage::available) fetch(Update(*m_status->update));
}

void FeedUpdater::fetch(const Update& update) {
  become({.stage = Stage::downloading, .update = update});
  watchForStall();
  m_work = m_with.service.download(
      update,
      [this](std::uint64_t received) {
        watchForStall();
        m_status->received = received;
        m_with.interface.setStatus(*m_status);
      },
      [this](const auto& result) { finishDownload(result); });
}

void FeedUpdater::finishDownload(const UpdateService::DownloadResult& result) {
  endWork();
  if (const auto* failure = std::get_if<UpdateFailure>(&result)) return fail(*failure);
  m_file = std::get<std::filesystem::path>(result);
  become({.stage = Stage::ready, .update = m_status->update});
  present();
}

void FeedUpdater::install() {
  if (!m_status || m_status->stage != Stage::ready) return;
  close();
  m_with.open(m_file, [this] { failToOpen(); });
}

void FeedUpdater::failToOpen() {
  if (m_status) return;
  become({.stage = Stage::failed, .failure = UpdateFailure::notOpened});
  present();
}

void FeedUpdater::skip() {
  const bool isOffered = m_status && (m_status->stage == Stage::available || m_status->stage == Stage::ready);
  if (!isOffered) return;
  m_with.defaults.set(updaterkeys::skippedUpdate, m_status->update->version);
  close();
}

void FeedUpdater::close() {
  endWork();
  reset();
  m_with.interface.hide();
}

// Nobody waits for what the schedule asks.
void FeedUpdater::fail(UpdateFailure failure) {
  if (m_asker == Asker::schedule) return reset();
  become({.stage = Stage::failed, .failure = failure});
  present();
}

void FeedUpdater::become(UpdateStatus status) {
  m_status = std::move(status);
  m_with.interface.setStatus(*m_status);
}

void FeedUpdater::present() {
  using Attention = UpdateInterface::Attention;
  m_with.interface.show(m_asker == Asker::user ? Attention::front : Attention::aside);
  // From here on the user waits for what comes.
  m_asker = Asker::user;
}

void FeedUpdater::watchForStall() {
  m_stall = m_with.runLoop.after(stallLimit, [this] {
    endWork();
    fail(UpdateFailure::unreachable);
  });
}

void FeedUpdater::endWork() {
  m_stall = {};
  m_work = {};
  if (!m_canCheckForUpdates.value()) m_canCheckForUpdates.set(true);
}

void FeedUpdater::reset() { m_status.reset(); }

}  // namespace quillmonger
