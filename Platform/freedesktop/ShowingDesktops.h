#pragma once

#include <string>
#include <vector>

namespace platform {

/// The parts of a list whose parts are separated by ":", such as PATH or XDG_CURRENT_DESKTOP. Any thread.
[[nodiscard]] std::vector<std::string> partsOf(const std::string& list);

/// Whether a desktop with these names, the most important one first, shows a desktop entry with these lists. Any
/// thread.
[[nodiscard]] bool isShownByDesktop(const std::vector<std::string>& desktops,
                                    const std::vector<std::string>& onlyShowIn,
                                    const std::vector<std::string>& notShowIn);

}  // namespace platform
