#pragma once

#include <string_view>
#include <vector>

namespace platform {

/// What stands between the separators, without the empty parts. Views into `text`. Any thread.
[[nodiscard]] std::vector<std::string_view> parts(std::string_view text, char separator);

}  // namespace platform
