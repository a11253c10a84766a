#include "Quillmonger/settings/view/GeneralSettings.h"

#include <cstdint>

#include "Quillmonger/settings/SettingsKeys.h"
#include "Quillmonger/update/UpdaterKeys.h"

namespace quillmonger {

namespace {

const std::vector<SettingChoice::Option<std::int64_t>>& historySizes() {
  static const std::vector<SettingChoice::Option<std::int64_t>> sizes{{10, "number_10_string"},
                                                                      {50, "number_50_string"},
                                                                      {200, "number_200_string"},
                                                                      {500, "number_500_string"},
                                                                      {1000, "number_1000_string"}};
  return sizes;
}

}  // namespace

GeneralSettings::GeneralSettings(const Collaborators& with)
    : m_soundEffects("sound_effects_title", with.defaults, keys::soundEffectsEnabled),
      m_soundVolume(with.defaults, keys::soundVolume, {0, 1, 0}),
      m_launchAtLogin("settings_launch_at_login_description", with.launchAtLogin),
      m_firstLaunch("settings_toggle_getting_started_message", with.defaults, keys::firstLaunch),
      m_updater(with.updater),
      m_checksForUpdates("settings_updates_check_automatically_toggle", with.defaults,
                         updaterkeys::automaticallyChecksForUpdates),
      m_downloadsUpdates("settings_updates_download_automatically_toggle", with.defaults,
                         updaterkeys::automaticallyDownloadsUpdates),
      m_pasteWithoutFormatting("settings_paste_without_formatting_message", with.defaults,
                               keys::alwaysPasteWithoutFormatting),
      m_historySize(with.defaults, keys::historySize, historySizes()),
      m_persistHistory("settings_persist_history_title", with.defaults, keys::persistHistory),
      m_pasteToApp(with.defaults, keys::pasteToApp,
                   {{true, "clipboard_on_paste_to_app_title"}, {false, "clipboard_on_paste_to_clipboard_title"}}),
      m_historyClearing(with.historyClearing) {}

}  // namespace quillmonger
