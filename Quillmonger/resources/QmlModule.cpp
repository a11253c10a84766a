#include "Quillmonger/resources/QmlModule.h"

#include <QQmlEngine>

#include "Quillmonger/resources/SymbolProvider.h"

// Generated from the types of this folder.
void qml_register_types_Quillmonger_Resources();

namespace quillmonger::resourcesview {

void registerTypes(QQmlEngine& engine) {
  qml_register_types_Quillmonger_Resources();
  engine.addImageProvider(QStringLiteral("symbol"), new SymbolProvider);
}

}  // namespace quillmonger::resourcesview
