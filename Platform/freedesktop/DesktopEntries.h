#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "Foundation/Url.h"
#include "Platform/freedesktop/DesktopEntry.h"

namespace platform {

/// The installed applications. Reads nothing until it is first asked, and again only when a folder has changed. Any
/// thread.
class DesktopEntries final {
 public:
  using List = std::vector<DesktopEntry>;

  /// `dataFolders`: as `XdgFolders::dataSearch`; the entries lie in their "applications".
  explicit DesktopEntries(std::vector<std::filesystem::path> dataFolders);

  /// One entry for each ID, hidden ones left out. The same object as long as nothing has changed.
  [[nodiscard]] std::shared_ptr<const List> present() const;

  /// The entry of this file, also of one that is in no folder of applications.
  [[nodiscard]] std::optional<DesktopEntry> at(const foundation::Url& url) const;

 private:
  using Folder = std::pair<std::filesystem::path, std::filesystem::file_time_type>;

  [[nodiscard]] bool isCurrent() const;
  void read() const;

  std::vector<std::filesystem::path> m_roots;
  mutable std::mutex m_mutex;
  mutable std::shared_ptr<const List> m_list;
  mutable std::vector<Folder> m_folders;
};

}  // namespace platform
