#pragma once

#include <string_view>
#include <vector>

#include "Platform/desktopshortcuts/Accelerator.h"

namespace platform {

/// The chords of Plasma. `file`: its "kglobalshortcutsrc", of a bounded size. What makes no sense in it is passed over.
/// Any thread.
[[nodiscard]] std::vector<Accelerator> kdeAccelerators(std::string_view file);

}  // namespace platform
