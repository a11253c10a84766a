#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// The layouts that an X server's keymap was made of, in the order of its groups, as "us" or "de(nodeadkeys)".
/// `property`: the bytes of _XKB_RULES_NAMES, as whatever program left them there. Empty when they make no sense. Any
/// thread.
[[nodiscard]] std::vector<std::string> layoutIdentifiers(std::string_view property);

}  // namespace platform
