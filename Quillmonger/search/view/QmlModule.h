#pragma once

namespace quillmonger::searchview {

/// Makes "Quillmonger.Search" known to QML. Before an engine loads a view of it.
void registerTypes();

}  // namespace quillmonger::searchview
