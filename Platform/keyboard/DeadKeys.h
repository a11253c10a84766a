#pragma once

#include <cstdint>
#include <optional>

namespace platform {

/// The accent of a dead key, standing alone; absent for any other symbol, and for an accent that has no such character.
/// Any thread.
[[nodiscard]] std::optional<char32_t> spacingCharacter(std::uint32_t keysym);

}  // namespace platform
