#include "Quillmonger/shell/view/QmlModule.h"

// Generated from the types of this folder.
void qml_register_types_Quillmonger_Shell();

namespace quillmonger::shellview {

void registerTypes() { qml_register_types_Quillmonger_Shell(); }

}  // namespace quillmonger::shellview
