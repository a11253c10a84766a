#pragma once

#include <QDir>

#include "Quillmonger/settings/ColorScheme.h"

namespace testsupport {

/// Pictures the guide's screens into the folder.
void pictureGuide(const QDir& folder, quillmonger::ColorScheme scheme);

}  // namespace testsupport
