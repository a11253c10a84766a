#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "Platform/freedesktop/DesktopEntries.h"
#include "Platform/freedesktop/XdgFolders.h"
#include "Quillmonger/settings/panes/InstalledApplications.h"

namespace platform {

/// The desktop entries that the menus of the user's desktop show.
class DesktopInstalledApplications final : public quillmonger::InstalledApplications {
 public:
  /// `entries` must outlive this object. The environment is asked for "PATH" and "XDG_CURRENT_DESKTOP", here only.
  DesktopInstalledApplications(const DesktopEntries& entries, const XdgFolders::Environment& environment);

  [[nodiscard]] std::vector<quillmonger::InstalledApplication> applications() const override;

 private:
  [[nodiscard]] bool isShown(const DesktopEntry& entry) const;
  [[nodiscard]] bool isRunnable(const std::filesystem::path& program) const;

  const DesktopEntries& m_entries;
  std::vector<std::string> m_programFolders;
  /// The desktop's names, the most specific first.
  std::vector<std::string> m_desktops;
};

}  // namespace platform
