#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Platform/desktopshortcuts/Accelerator.h"

namespace platform {

/// The chords of Xfce's commands and of its window manager.
///
/// `files`: what the files "xfce4-keyboard-shortcuts.xml" hold, the user's own first. A chord's value is that of the
/// first file that has one for it; with an empty value it is switched off. Absent when no file can be read. Any thread.
[[nodiscard]] std::optional<std::vector<Accelerator>> xfceAccelerators(const std::vector<std::string>& files);

}  // namespace platform
