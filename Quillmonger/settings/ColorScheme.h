#pragma once

#include <array>
#include <cstdint>
#include <utility>

#include "Defaults/RawRepresentableBridge.h"

namespace quillmonger {

/// The appearance of every window, where the user forces one.
enum class ColorScheme { light, dark };

}  // namespace quillmonger

/// 0 and any other integer stand for no forced scheme.
template <>
inline constexpr auto defaults::rawValues<quillmonger::ColorScheme> =
    std::to_array<std::pair<quillmonger::ColorScheme, std::int64_t>>({{quillmonger::ColorScheme::light, 1},
                                                                      {quillmonger::ColorScheme::dark, 2}});
