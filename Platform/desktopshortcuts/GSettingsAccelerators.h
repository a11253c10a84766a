#pragma once

#include <string_view>
#include <vector>

#include "Platform/desktopshortcuts/Accelerator.h"

namespace platform {

/// The chords of a desktop that keeps them in GSettings. `desktop`: a name as in XDG_CURRENT_DESKTOP, in lower case.
/// Empty for another desktop, and where none of its schemas is installed. The chords that a user of MATE added are left
/// out: no list says where they lie. Main thread; reads at once.
[[nodiscard]] std::vector<Accelerator> gSettingsAccelerators(std::string_view desktop);

}  // namespace platform
