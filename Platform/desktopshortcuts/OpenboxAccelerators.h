#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "Platform/desktopshortcuts/Accelerator.h"

namespace platform {

/// The chords of openbox. `file`: its "rc.xml". Of a chain of chords, the first counts. Absent when the file can't be
/// read. Any thread.
[[nodiscard]] std::optional<std::vector<Accelerator>> openboxAccelerators(std::string_view file);

}  // namespace platform
