#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace quillmonger {

/// The one of `candidates` that `word` is most likely a slip of the fingers for: at most two letters are wrong,
/// missing, too many or swapped with a neighbour, and not all of them. Absent when none is so near. Any thread.
[[nodiscard]] std::optional<std::string_view> nearestWord(std::string_view word,
                                                          std::span<const std::string_view> candidates);

}  // namespace quillmonger
