#include "Quillmonger/settings/view/ToggleModel.h"

#include "Quillmonger/resources/Texts.h"

namespace quillmonger {

ToggleModel::ToggleModel(const char* textKey, defaults::Defaults& defaults, const defaults::Key<bool>& key)
    : m_toggle(textKey, defaults, key, [this](bool) { emit isOnChanged(); }) {}

QString ToggleModel::label() const { return QString::fromStdString(localizedText(m_toggle.label())); }

}  // namespace quillmonger
