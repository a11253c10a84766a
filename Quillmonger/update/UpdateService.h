#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <variant>

#include "Foundation/Subscription.h"
#include "Quillmonger/update/Update.h"

namespace quillmonger {

/// Asks the feed, and fetches files. Nothing that comes from here is unsigned. Main thread; each answer comes in a
/// later turn, at most once, and not at all once the hold is gone, which ends the work. One work at a time.
class UpdateService {
 public:
  UpdateService() = default;
  UpdateService(const UpdateService&) = delete;
  UpdateService& operator=(const UpdateService&) = delete;
  virtual ~UpdateService() = default;

  /// The newest version that is newer than this program; absent when there is none.
  using CheckResult = std::variant<std::optional<Update>, UpdateFailure>;
  virtual foundation::Subscription check(std::function<void(const CheckResult&)> finished) = 0;

  using DownloadResult = std::variant<std::filesystem::path, UpdateFailure>;
  /// Stores the update's file, whose digest is then the announced one. `progressed` is told how many bytes are there. A
  /// file that an earlier call stored is taken at once.
  virtual foundation::Subscription download(const Update& update,
                                            std::function<void(std::uint64_t received)> progressed,
                                            std::function<void(const DownloadResult&)> finished) = 0;
};

}  // namespace quillmonger
