#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "Quillmonger/update/SoftwareVersion.h"
#include "Quillmonger/update/Update.h"

namespace quillmonger {

/// What a feed offers: RSS 2.0, with "quillmonger:version" and "quillmonger:sha256" as attributes of each item's
/// enclosure (docs/updates.md). Any thread.
namespace appcast {

/// How many items of a feed are read: its first ones.
inline constexpr std::size_t itemLimit = 100;
/// Bytes of an item's notes; what exceeds them is cut.
inline constexpr std::size_t notesLimit = std::size_t{16} << 10U;

/// The items that can be used; the others are passed over. Absent for a text that is not well-formed XML to its end.
[[nodiscard]] std::optional<std::vector<Update>> parse(std::string_view text);

/// The newest of them, if it is newer than `own`.
[[nodiscard]] std::optional<Update> newest(const std::vector<Update>& updates, const SoftwareVersion& own);

}  // namespace appcast

}  // namespace quillmonger
