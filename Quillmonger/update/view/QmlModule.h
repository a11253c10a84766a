#pragma once

namespace quillmonger::updateview {

/// Makes "Quillmonger.Update" known to QML. Before an engine loads a view of it.
void registerTypes();

}  // namespace quillmonger::updateview
