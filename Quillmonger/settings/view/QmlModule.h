#pragma once

namespace quillmonger::settingsview {

/// Makes "Quillmonger.Settings" known to QML. Before an engine loads a view of it.
void registerTypes();

}  // namespace quillmonger::settingsview
