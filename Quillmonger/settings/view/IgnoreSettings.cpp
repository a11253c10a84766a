#include "Quillmonger/settings/view/IgnoreSettings.h"

#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

IgnoreSettings::IgnoreSettings(defaults::Defaults& defaults)
    : m_ignoreSensitiveData("settings_ignore_sensitive_title", defaults, keys::ignoreSensitiveData),
      m_ignoreImages("settings_ignore_images_title", defaults, keys::ignoreImages) {}

}  // namespace quillmonger
