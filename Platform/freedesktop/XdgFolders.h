#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Foundation/Result.h"

namespace platform {

/// Where the XDG base directory standard puts a program's files. A variable that holds no absolute path counts as
/// unset. Nothing is made here. Any thread.
struct XdgFolders {
  using Environment = std::function<std::optional<std::string>(const std::string& name)>;

  /// A variable of this process.
  [[nodiscard]] static std::optional<std::string> ownEnvironment(const std::string& name);

  [[nodiscard]] static XdgFolders fromEnvironment(const Environment& environment);
  /// From the environment of this process.
  [[nodiscard]] static XdgFolders present();

  /// The program's own: ".../quillmonger".
  std::filesystem::path config;
  std::filesystem::path data;
  /// What can be had again.
  std::filesystem::path cache;
  /// Local to the machine and gone with the session; "/tmp/quillmonger-UID" when the session names none.
  std::filesystem::path runtime;
  /// Where applications are looked for, the most important first: not the program's own.
  std::vector<std::filesystem::path> dataSearch;
  /// Where the desktop and other programs keep their settings, the user's own folder first.
  std::vector<std::filesystem::path> configSearch;
};

/// Makes sure that `folder` is a folder of this user that no one else may enter; makes it and its parents. An error
/// when there is anything else in its place, a symbolic link among it. Any thread.
[[nodiscard]] foundation::Outcome ensurePrivateFolder(const std::filesystem::path& folder);

}  // namespace platform
