#include "Quillmonger/settings/view/SearchSettingsModel.h"

#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

// A little more than 0.3, so that rounding can't put the last step, 0.3, out of reach.
constexpr SettingRange::Bounds pauses{0.05, 0.301, 0.05};

}  // namespace

SearchSettingsModel::SearchSettingsModel(defaults::Defaults& defaults)
    : m_caseSensitive("settings_case_sensitive_description", defaults, keys::searchCaseSensitive),
      m_regex("settings_regex_description", defaults, keys::searchRegex),
      m_appName("settings_serach_include_app_msg", defaults, keys::searchAppName),
      m_debounceInterval(defaults, keys::searchDebounceInterval, pauses) {}

}  // namespace quillmonger
