#pragma once

namespace quillmonger::shellview {

/// Makes "Quillmonger.Shell" known to QML. Before an engine loads a view of it.
void registerTypes();

}  // namespace quillmonger::shellview
