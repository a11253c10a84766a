#include "KeyboardShortcuts/view/QmlModule.h"

// Generated from the types of this folder. The object file that it lies in makes the module known when it is linked,
// and naming the function is what links it.
void qml_register_types_KeyboardShortcuts();

namespace keyboardshortcuts::view {

void registerTypes() { [[maybe_unused]] void (*volatile linked)() = &qml_register_types_KeyboardShortcuts; }

}  // namespace keyboardshortcuts::view
