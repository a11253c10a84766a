#pragma once

class QQmlEngine;

namespace quillmonger::resourcesview {

/// Makes "Quillmonger.Resources" known to QML, and its symbols to this engine. Before the engine loads a view.
void registerTypes(QQmlEngine& engine);

}  // namespace quillmonger::resourcesview
