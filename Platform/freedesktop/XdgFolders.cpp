#include "Platform/freedesktop/XdgFolders.h"

#include <errno.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <system_error>

namespace platform {

namespace {

std::optional<std::filesystem::path> absolutePath(const XdgFolders::Environment& environment, const char* name) {
  const auto value = environment(name);
  if (!value.has_value() || value->empty() || value->front() != '/') return std::nullopt;
  return std::filesystem::path(*value);
}

std::filesystem::path homeFolder(const XdgFolders::Environment& environment) {
  if (auto home = absolutePath(environment, "HOME")) return *home;
  const passwd* entry = getpwuid(getuid());
  return entry != nullptr && entry->pw_dir != nullptr && entry->pw_dir[0] == '/' ? entry->pw_dir : "/";
}

void addOnce(std::vector<std::filesystem::path>& folders, const std::filesystem::path& folder) {
  if (std::ranges::find(folders, folder) == folders.end()) folders.push_back(folder);
}

// The user's own folder, then those that the variable lists.
std::vector<std::filesystem::path> searchFolders(const std::filesystem::path& own,
                                                 const std::optional<std::string>& variable,
                                                 std::string_view standard) {
  std::vector<std::filesystem::path> folders{own};
  std::string_view rest = variable.has_value() && !variable->empty() ? std::string_view(*variable) : standard;
  while (!rest.empty()) {
    const auto end = std::min(rest.find(':'), rest.size());
    const auto part = rest.substr(0, end);
    if (part.starts_with('/')) addOnce(folders, std::filesystem::path(part));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return folders;
}

std::vector<std::filesystem::path> dataFolders(const XdgFolders::Environment& environment,
                                               const std::filesystem::path& dataHome) {
  auto folders = searchFolders(dataHome, environment("XDG_DATA_DIRS"), "/usr/local/share:/usr/share");
  // What these two install is listed by the session's XDG_DATA_DIRS, but not by that of every start from elsewhere.
  addOnce(folders, dataHome / "flatpak/exports/share");
  addOnce(folders, "/var/lib/flatpak/exports/share");
  addOnce(folders, "/var/lib/snapd/desktop");
  return folders;
}

}  // namespace

XdgFolders XdgFolders::fromEnvironment(const Environment& environment) {
  const auto home = homeFolder(environment);
  const auto dataHome = absolutePath(environment, "XDG_DATA_HOME").value_or(home / ".local/share");
  const auto configHome = absolutePath(environment, "XDG_CONFIG_HOME").value_or(home / ".config");
  const auto runtime = absolutePath(environment, "XDG_RUNTIME_DIR");
  XdgFolders folders;
  folders.config = configHome / "quillmonger";
  folders.data = dataHome / "quillmonger";
  folders.cache = absolutePath(environment, "XDG_CACHE_HOME").value_or(home / ".cache") / "quillmonger";
  folders.runtime = runtime.has_value() ? *runtime / "quillmonger"
                                        : std::filesystem::path("/tmp/quillmonger-" + std::to_string(getuid()));
  folders.dataSearch = dataFolders(environment, dataHome);
  folders.configSearch = searchFolders(configHome, environment("XDG_CONFIG_DIRS"), "/etc/xdg");
  return folders;
}

std::optional<std::string> XdgFolders::ownEnvironment(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

XdgFolders XdgFolders::present() { return fromEnvironment(ownEnvironment); }

foundation::Outcome ensurePrivateFolder(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder.parent_path(), error);
  if (mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) {
    return foundation::Error{folder.string() + ": " + std::generic_category().message(errno)};
  }
  struct stat status {};
  if (lstat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) {
    return foundation::Error{folder.string() + " is no folder"};
  }
  if (status.st_uid != geteuid()) return foundation::Error{folder.string() + " belongs to another user"};
  if ((status.st_mode & (S_IRWXG | S_IRWXO)) != 0) {
    return foundation::Error{folder.string() + " is open to other users"};
  }
  return foundation::success();
}

}  // namespace platform
