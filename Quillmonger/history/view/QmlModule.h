#pragma once

namespace quillmonger::historyview {

/// Makes "Quillmonger.History" known to QML. Before an engine loads a view of it.
void registerTypes();

}  // namespace quillmonger::historyview
