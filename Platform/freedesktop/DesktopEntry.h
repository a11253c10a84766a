#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Foundation/Url.h"

namespace platform {

/// An installed application, as its desktop entry describes it. Any thread.
struct DesktopEntry {
  static constexpr std::size_t sizeLimit = std::size_t{1} << 20U;

  /// The desktop-file ID without ".desktop".
  std::string id;
  foundation::Url url;
  /// In the user's language.
  std::string name;
  std::string icon;
  /// The program that runs: a path or a bare name; for a script the script. Empty for what Flatpak or Snap starts.
  std::string binary;
  std::string startupWmClass;
  std::vector<std::string> categories;
  bool isNoDisplay = false;
  /// Stands for "not installed", also for an entry of this ID in a less important folder.
  bool isHidden = false;

  /// Absent when the file is missing, larger than `sizeLimit`, or no application's desktop entry.
  [[nodiscard]] static std::optional<DesktopEntry> read(const std::filesystem::path& path, std::string id);
};

/// The program that a command line runs: its first word, past "env" and interpreters. Empty for a sandbox's launcher.
[[nodiscard]] std::string programOf(const std::vector<std::string>& arguments);

}  // namespace platform
