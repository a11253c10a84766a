#pragma once

namespace quillmonger::previewview {

/// Makes "Quillmonger.Preview" known to QML. Before an engine loads a view of it.
void registerTypes();

}  // namespace quillmonger::previewview
