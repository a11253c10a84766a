#include "Platform/freedesktop/DesktopEntries.h"

#include <algorithm>
#include <set>
#include <string>
#include <system_error>

namespace platform {

namespace {

namespace fs = std::filesystem;

constexpr int depthLimit = 4;
constexpr std::size_t fileLimit = 20000;
constexpr std::string_view suffix = ".desktop";

// A missing folder has a time too, so that its coming is noticed.
fs::file_time_type timeOf(const fs::path& folder) {
  std::error_code error;
  const auto time = fs::last_write_time(folder, error);
  return error ? fs::file_time_type::min() : time;
}

struct Reader {
  DesktopEntries::List entries;
  std::vector<std::pair<fs::path, fs::file_time_type>> folders;
  std::set<std::string> seen;
  std::vector<fs::path> openFolders;
  std::size_t fileCount = 0;

  void readFolder(const fs::path& folder, const std::string& prefix, int depth) {
    folders.emplace_back(folder, timeOf(folder));
    std::error_code error;
    // A link can lead back.
    const auto place = fs::weakly_canonical(folder, error);
    if (std::ranges::find(openFolders, place) != openFolders.end()) return;
    openFolders.push_back(place);
    for (fs::directory_iterator item(folder, error), end; !error && item != end; item.increment(error)) {
      if (++fileCount > fileLimit) break;
      const auto name = item->path().filename().string();
      std::error_code ignored;
      if (name.ends_with(suffix)) {
        readEntry(item->path(), prefix + name.substr(0, name.size() - suffix.size()));
      } else if (depth < depthLimit && item->is_directory(ignored)) {
        readFolder(item->path(), prefix + name + "-", depth + 1);
      }
    }
    openFolders.pop_back();
  }

  void readEntry(const fs::path& path, const std::string& id) {
    if (seen.contains(id)) return;
    auto entry = DesktopEntry::read(path, id);
    if (!entry.has_value()) return;
    seen.insert(id);
    if (!entry->isHidden) entries.push_back(*std::move(entry));
  }
};

}  // namespace

DesktopEntries::DesktopEntries(std::vector<fs::path> dataFolders) : m_roots(std::move(dataFolders)) {
  for (auto& root : m_roots)
    root /= "applications";
}

std::shared_ptr<const DesktopEntries::List> DesktopEntries::present() const {
  const std::lock_guard lock(m_mutex);
  if (m_list == nullptr || !isCurrent()) read();
  return m_list;
}

std::optional<DesktopEntry> DesktopEntries::at(const foundation::Url& url) const {
  const auto list = present();
  const auto known = std::ranges::find(*list, url, &DesktopEntry::url);
  const auto path = url.filePath();
  if (!path.has_value() || !path->ends_with(suffix)) return std::nullopt;
  // Read anew: a file that is changed in its place leaves its folder's time as it was.
  auto entry = DesktopEntry::read(*path, known != list->end() ? known->id : fs::path(*path).stem().string());
  return entry.has_value() && !entry->isHidden ? entry : std::nullopt;
}

bool DesktopEntries::isCurrent() const {
  return std::ranges::all_of(m_folders, [](const Folder& folder) { return timeOf(folder.first) == folder.second; });
}

void DesktopEntries::read() const {
  Reader reader;
  for (const auto& root : m_roots)
    reader.readFolder(root, "", 0);
  m_list = std::make_shared<const List>(std::move(reader.entries));
  m_folders = std::move(reader.folders);
}

}  // namespace platform
