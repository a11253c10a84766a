#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quillmonger {

/// Reads the whole of `text` by the date patterns, in the default locale and time zone of the moment, and gives the
/// seconds since 1970. Years, months and days are those of the Gregorian calendar in every locale. Takes some tens of
/// microseconds. `text` is valid UTF-8 of at most 2 GiB. Any thread.
[[nodiscard]] std::optional<double> readDatePattern(std::string_view text);

/// Whether `text` has at most `count` characters as a user perceives them (extended grapheme clusters).
[[nodiscard]] bool hasAtMostCharacters(std::string_view text, std::size_t count);

}  // namespace quillmonger
