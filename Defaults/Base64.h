#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Defaults/Object.h"

namespace defaults {

/// RFC 4648, with padding. Any thread.
[[nodiscard]] std::string encodeBase64(const Bytes& bytes);
/// Absent for anything else; white space is passed over.
[[nodiscard]] std::optional<Bytes> decodeBase64(std::string_view text);

}  // namespace defaults
