#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace platform {

/// No desktop has more settings: what lies beyond is not read.
inline constexpr std::uint32_t mostXSettings = 1000;

/// The value of a number among the settings that the desktop gives to every program of the display, as their property
/// holds them. Absent when it is missing, is no number, or what stands before it is damaged. Any thread.
[[nodiscard]] std::optional<std::int32_t> xSettingsNumber(std::string_view settings, std::string_view name,
                                                          std::uint32_t limit = mostXSettings);

}  // namespace platform
