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
  /// Bytes of a file.
  static constexpr std::size_t sizeLimit = std::size_t{1} << 20U;
  /// Bytes of a text for the user, and how many keywords there are. What exceeds them is cut.
  static constexpr std::size_t textLimit = 256;
  static constexpr std::size_t keywordLimit = 64;

  /// The desktop-file ID without ".desktop".
  std::string id;
  foundation::Url url;
  /// In the user's language.
  std::string name;
  std::string genericName;
  std::vector<std::string> keywords;
  std::string icon;
  /// The program that runs: a path or a bare name; for a script the script. Empty for what Flatpak or Snap starts.
  std::string binary;
  /// The program without which this one does not count as installed: a path or a bare name. Empty for most.
  std::string tryExec;
  std::string startupWmClass;
  std::vector<std::string> categories;
  /// The desktops that show it, and those that don't. Both empty for one that every desktop shows.
  std::vector<std::string> onlyShowIn;
  std::vector<std::string> notShowIn;
  bool isNoDisplay = false;
  /// Stands for "not installed", also for an entry of this ID in a less important folder.
  bool isHidden = false;

  /// Absent when the file is missing, larger than `sizeLimit`, or no application's desktop entry.
  [[nodiscard]] static std::optional<DesktopEntry> read(const std::filesystem::path& path, std::string id);
};

/// The program that a command line runs: its first word, past "env" and interpreters. Empty for a sandbox's launcher.
[[nodiscard]] std::string programOf(const std::vector<std::string>& arguments);

}  // namespace platform
