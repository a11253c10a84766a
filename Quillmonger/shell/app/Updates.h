#pragma once

#include <filesystem>
#include <memory>

#include "Defaults/Defaults.h"
#include "Foundation/RunLoop.h"
#include "Quillmonger/shell/OutsideOpening.h"
#include "Quillmonger/shell/windows/Panel.h"
#include "Quillmonger/update/UnconfiguredUpdater.h"
#include "Quillmonger/update/view/UpdateModel.h"

namespace quillmonger {

/// The updater: one that asks the feed of this installation, if there is one. Main thread.
class Updates final {
 public:
  struct Collaborators {
    defaults::Defaults& defaults;
    foundation::RunLoop& runLoop;
    UpdateModel& model;
    Panel& window;
    OutsideOpening& opening;
    /// Where downloads are stored.
    std::filesystem::path folder;
  };

  /// All collaborators outlive this object.
  explicit Updates(const Collaborators& collaborators);
  Updates(const Updates&) = delete;
  Updates& operator=(const Updates&) = delete;
  ~Updates();

  [[nodiscard]] Updater& updater();

 private:
  class Configured;

  UnconfiguredUpdater m_unconfigured;
  /// Null without a feed.
  std::unique_ptr<Configured> m_configured;
};

}  // namespace quillmonger
