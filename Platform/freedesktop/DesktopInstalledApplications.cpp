#include "Platform/freedesktop/DesktopInstalledApplications.h"

#include <unistd.h>

#include <algorithm>
#include <system_error>

#include "Platform/freedesktop/ShowingDesktops.h"

namespace platform {

namespace {

bool isProgram(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error) && access(path.c_str(), X_OK) == 0;
}

}  // namespace

DesktopInstalledApplications::DesktopInstalledApplications(const DesktopEntries& entries,
                                                           const XdgFolders::Environment& environment)
    : m_entries(entries),
      m_programFolders(partsOf(environment("PATH").value_or("/usr/local/bin:/usr/bin:/bin"))),
      m_desktops(partsOf(environment("XDG_CURRENT_DESKTOP").value_or(""))) {}

std::vector<quillmonger::InstalledApplication> DesktopInstalledApplications::applications() const {
  std::vector<quillmonger::InstalledApplication> applications;
  const auto entries = m_entries.present();
  for (const auto& entry : *entries) {
    if (!isShown(entry)) continue;
    applications.push_back({entry.url, entry.id, entry.name, entry.genericName, entry.keywords});
  }
  return applications;
}

bool DesktopInstalledApplications::isShown(const DesktopEntry& entry) const {
  if (entry.isNoDisplay || entry.name.empty() || !isShownByDesktop(m_desktops, entry.onlyShowIn, entry.notShowIn))
    return false;
  return entry.tryExec.empty() || isRunnable(entry.tryExec);
}

bool DesktopInstalledApplications::isRunnable(const std::filesystem::path& program) const {
  if (program.is_absolute()) return isProgram(program);
  return std::ranges::any_of(m_programFolders, [&](const auto& folder) { return isProgram(folder / program); });
}

}  // namespace platform
