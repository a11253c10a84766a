#pragma once

#include <QDir>

#include "Quillmonger/settings/ColorScheme.h"

namespace testsupport {

/// Pictures every state of the pane "keyBindings", and its questions, into `folder`.
void pictureKeyBindings(const QDir& folder, quillmonger::ColorScheme scheme);

}  // namespace testsupport
