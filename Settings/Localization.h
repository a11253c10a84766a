#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace settings {

/// What the program is called, from the name for people to that of its file.
struct ApplicationNames {
  std::optional<std::string> displayName;
  std::optional<std::string> name;
  std::optional<std::string> executable;
};

namespace localization {

/// The word for settings in the language of `locale` ("de_AT.UTF-8", "pt-BR"), or else in English: "Settings" as system
/// versions from 13 on say it, and "Preferences" as earlier ones do.
[[nodiscard]] std::string_view settingsWord(std::string_view locale, int systemVersion);

/// The title of a window with a single pane: the program's name, a blank, and that word.
[[nodiscard]] std::string singlePaneTitle(const ApplicationNames& names, std::string_view locale, int systemVersion);

}  // namespace localization

}  // namespace settings
