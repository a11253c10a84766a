#include "Quillmonger/settings/view/IgnoreSettings.h"

#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

using Initial = defaults::Defaults::Initial;

IgnoreSettings::IgnoreSettings(defaults::Defaults& defaults)
    : m_defaults(defaults),
      m_sensitiveSubscription(
          defaults.updates<bool>(keys::ignoreSensitiveData, Initial::no, [this](const bool&) { emit changed(); })),
      m_imagesSubscription(
          defaults.updates<bool>(keys::ignoreImages, Initial::no, [this](const bool&) { emit changed(); })) {}

bool IgnoreSettings::ignoreSensitiveData() const { return m_defaults[keys::ignoreSensitiveData]; }

void IgnoreSettings::setIgnoreSensitiveData(bool isOn) { m_defaults.set(keys::ignoreSensitiveData, isOn); }

bool IgnoreSettings::ignoreImages() const { return m_defaults[keys::ignoreImages]; }

void IgnoreSettings::setIgnoreImages(bool isOn) { m_defaults.set(keys::ignoreImages, isOn); }

}  // namespace quillmonger
