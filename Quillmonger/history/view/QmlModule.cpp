#include "Quillmonger/history/view/QmlModule.h"

// Generated from the types of this folder.
void qml_register_types_Quillmonger_History();

namespace quillmonger::historyview {

void registerTypes() { qml_register_types_Quillmonger_History(); }

}  // namespace quillmonger::historyview
