#pragma once

namespace settings {

/// Makes "Settings" known to QML. Before an engine loads a view of it.
void registerTypes();

}  // namespace settings
