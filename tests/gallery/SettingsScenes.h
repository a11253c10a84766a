#pragma once

#include <QDir>

#include "Quillmonger/settings/ColorScheme.h"

namespace testsupport {

/// Pictures every state of the settings' views into `folder`.
void pictureSettings(const QDir& folder, quillmonger::ColorScheme scheme);

}  // namespace testsupport
