#pragma once

namespace quillmonger::guideview {

/// Makes "Quillmonger.Guide" known to QML. Before an engine loads a view of it.
void registerTypes();

}  // namespace quillmonger::guideview
