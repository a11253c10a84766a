#include "Quillmonger/update/view/QmlModule.h"

// Generated from the types of this folder. The object file that it lies in makes the module known when it is linked,
// and naming the function is what links it.
void qml_register_types_Quillmonger_Update();

namespace quillmonger::updateview {

void registerTypes() { [[maybe_unused]] void (*volatile linked)() = &qml_register_types_Quillmonger_Update; }

}  // namespace quillmonger::updateview
