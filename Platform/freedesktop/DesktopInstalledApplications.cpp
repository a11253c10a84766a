#include "Platform/freedesktop/DesktopInstalledApplications.h"

#include <unistd.h>

#include <algorithm>
#include <string_view>
#include <system_error>

namespace platform {

namespace {

std::vector<std::string> partsOf(const std::string& list) {
  std::vector<std::string> parts;
  std::string_view rest = list;
  while (!rest.empty()) {
    const auto end = std::min(rest.find(':'), rest.size());
    if (end > 0) parts.emplace_back(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return parts;
}

bool isProgram(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error) && access(path.c_str(), X_OK) == 0;
}

bool contains(const std::vector<std::string>& list, const std::string& word) {
  return std::ranges::find(list, word) != list.end();
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
  if (entry.isNoDisplay || entry.name.empty() || !isShownByDesktop(entry)) return false;
  return entry.tryExec.empty() || isRunnable(entry.tryExec);
}

// The first of the desktop's names that one of the lists has decides.
bool DesktopInstalledApplications::isShownByDesktop(const DesktopEntry& entry) const {
  for (const auto& desktop : m_desktops) {
    if (contains(entry.onlyShowIn, desktop)) return true;
    if (contains(entry.notShowIn, desktop)) return false;
  }
  return entry.onlyShowIn.empty();
}

bool DesktopInstalledApplications::isRunnable(const std::filesystem::path& program) const {
  if (program.is_absolute()) return isProgram(program);
  return std::ranges::any_of(m_programFolders, [&](const auto& folder) { return isProgram(folder / program); });
}

}  // namespace platform
