#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "LaunchAtLogin/AppService.h"

namespace platform {

class AutostartFile;

/// The start at login by an XDG autostart entry in the user's own folder. What the user or the desktop's own tools
/// wrote into it stays: turning off marks an edited entry as hidden, turning on removes such marks, and a command that
/// is not the program alone is kept while it can be run. Main thread; reads and writes one small file.
class AutostartEntry final : public launchatlogin::AppService {
 public:
  /// `configFolders`: the user's own first, then those of the system (`XdgFolders::configSearch`). `program`: the
  /// absolute path of what is to be started.
  AutostartEntry(std::vector<std::filesystem::path> configFolders, std::filesystem::path program);

  [[nodiscard]] Status status() const override;
  foundation::Outcome registerApp() override;
  foundation::Outcome unregisterApp() override;

 private:
  [[nodiscard]] const std::filesystem::path& ownPath() const { return m_paths.front(); }
  /// An error when something is there that can't be read.
  [[nodiscard]] foundation::Result<AutostartFile> ownFile() const;

  /// Each folder's entry, the user's own first.
  std::vector<std::filesystem::path> m_paths;
  std::filesystem::path m_program;
};

}  // namespace platform
