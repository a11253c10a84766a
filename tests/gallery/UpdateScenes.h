#pragma once

#include <QDir>

#include "Quillmonger/settings/ColorScheme.h"

namespace testsupport {

/// Pictures every state of the updater's window into `folder`.
void pictureUpdates(const QDir& folder, quillmonger::ColorScheme scheme);

}  // namespace testsupport
