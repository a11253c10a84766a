#include "Quillmonger/resources/QmlModule.h"

#include <QQmlEngine>

#include "Quillmonger/resources/SymbolProvider.h"

// Generated from the types of this folder. The object file that it lies in makes the module known when it is linked,
// and naming the function is what links it.
void qml_register_types_Quillmonger_Resources();

namespace quillmonger::resourcesview {

void registerTypes(QQmlEngine& engine) {
  [[maybe_unused]] void (*volatile linked)() = &qml_register_types_Quillmonger_Resources;
  engine.addImageProvider(QStringLiteral("symbol"), new SymbolProvider);
}

}  // namespace quillmonger::resourcesview
