#pragma once

#include <QDir>

#include "Quillmonger/settings/ColorScheme.h"

namespace testsupport {

/// Pictures every state of the preview pane into `folder`, beside a piece of the history's window.
void picturePreview(const QDir& folder, quillmonger::ColorScheme scheme);

}  // namespace testsupport
