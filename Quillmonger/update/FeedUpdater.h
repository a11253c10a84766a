#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "Defaults/Defaults.h"
#include "Foundation/RunLoop.h"
#include "Quillmonger/update/UpdateInterface.h"
#include "Quillmonger/update/UpdateService.h"
#include "Quillmonger/update/Updater.h"

namespace quillmonger {

/// The updater of a program with a feed: asks it once a day or when the user does, and takes the user through what it
/// finds. Main thread.
class FeedUpdater final : public Updater {
 public:
  /// From the start to the first scheduled check, which is to be in nobody's way.
  static constexpr foundation::Seconds firstCheckDelay{10};
  /// Between two checks that got an answer.
  static constexpr foundation::Seconds checkInterval{24 * 60 * 60};
  /// How often it is asked whether a check is due: a machine that sleeps counts no time.
  static constexpr foundation::Seconds tickInterval{60 * 60};
  /// A server from which nothing comes for so long is taken for gone.
  static constexpr foundation::Seconds stallLimit{60};

  struct Collaborators {
    defaults::Defaults& defaults;
    foundation::RunLoop& runLoop;
    UpdateService& service;
    UpdateInterface& interface;
    /// Hands a file to the desktop's program for it. `failed` is called in a later turn if nothing opens it.
    std::function<void(const std::filesystem::path&, std::function<void()> failed)> open;
  };

  /// All collaborators outlive this object.
  explicit FeedUpdater(Collaborators collaborators);

  [[nodiscard]] bool hasFeed() const override { return true; }
  void startUpdater() override;
  [[nodiscard]] foundation::Published<bool>& canCheckForUpdates() override { return m_canCheckForUpdates; }
  /// Brings back what an earlier check has found, while that waits for the user.
  void checkForUpdates() override;

  // What the user answers in the window. Each is without effect where the window does not offer it.
  void download();
  void install();
  /// The scheduled checks won't tell of this version again.
  void skip();
  /// Ends what is under way, and leaves what was found to the next check.
  void close();

 private:
  using Stage = UpdateStatus::Stage;

  void tick();
  [[nodiscard]] bool isCheckDue() const;
  enum class Asker { user, schedule };
  void check(Asker asker);
  void finishCheck(const UpdateService::CheckResult& result);
  void offer(const Update& update);
  void fetch(const Update& update);
  void finishDownload(const UpdateService::DownloadResult& result);
  void fail(UpdateFailure failure);
  void failToOpen();
  void become(UpdateStatus status);
  void present();
  void watchForStall();
  void endWork();
  void reset();

  Collaborators m_with;
  foundation::Published<bool> m_canCheckForUpdates{true};
  Asker m_asker = Asker::user;
  /// Absent while there is nothing to tell.
  std::optional<UpdateStatus> m_status;
  std::filesystem::path m_file;
  foundation::Subscription m_ticks;
  foundation::Subscription m_stall;
  foundation::Subscription m_work;
};

}  // namespace quillmonger
