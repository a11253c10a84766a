#include "Quillmonger/guide/view/QmlModule.h"

// Generated from the types of this folder.
void qml_register_types_Quillmonger_Guide();

namespace quillmonger::guideview {

void registerTypes() { qml_register_types_Quillmonger_Guide(); }

}  // namespace quillmonger::guideview
