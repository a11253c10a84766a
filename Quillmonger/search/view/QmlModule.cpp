#include "Quillmonger/search/view/QmlModule.h"

// Generated from the types of this folder.
void qml_register_types_Quillmonger_Search();

namespace quillmonger::searchview {

void registerTypes() { qml_register_types_Quillmonger_Search(); }

}  // namespace quillmonger::searchview
