#pragma once

namespace keyboardshortcuts::view {

/// Makes "KeyboardShortcuts" known to QML. Before an engine loads a view of it.
void registerTypes();

}  // namespace keyboardshortcuts::view
