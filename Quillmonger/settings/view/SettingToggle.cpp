#include "Quillmonger/settings/view/SettingToggle.h"

#include "Quillmonger/resources/Texts.h"

namespace quillmonger {

SettingToggle::SettingToggle(const char* textKey, defaults::Defaults& defaults, const defaults::Key<bool>& key)
    : m_toggle(textKey, defaults, key, [this](bool) { emit isOnChanged(); }) {}

QString SettingToggle::label() const { return QString::fromStdString(localizedText(m_toggle.label())); }

}  // namespace quillmonger
