#include "Quillmonger/settings/view/SearchSettingsModel.h"

#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

// The sixth number is 0.3. It lies a little above it, as sums of such numbers do, and so must the end.
constexpr SettingRange::Bounds pauses{0.05, 0.301, 0.05};

}  // namespace

SearchSettingsModel::SearchSettingsModel(defaults::Defaults& defaults)
    : m_caseSensitive("settings_case_sensitive_description", defaults, keys::searchCaseSensitive),
      m_regex("settings_regex_description", defaults, keys::searchRegex),
      m_appName("settings_serach_include_app_msg", defaults, keys::searchAppName),
      m_debounceInterval(defaults, keys::searchDebounceInterval, pauses) {}

}  // namespace quillmonger
