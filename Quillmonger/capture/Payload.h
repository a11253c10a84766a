#pragma once

#include <map>
#include <optional>
#include <string>

#include "Foundation/Data.h"

namespace quillmonger {

/// Everything that one copy offers: pasteboard type to bytes. An absent value is a type that was offered and could not
/// be read; it differs from empty bytes.
using Payload = std::map<std::string, std::optional<foundation::Data>, std::less<>>;

/// The MD5 digest of type names and bytes in ascending order of the names, as 32 lower-case hexadecimal digits.
/// An absent value contributes its name alone. Reads all bytes.
[[nodiscard]] std::string payloadDigest(const Payload& payload);

}  // namespace quillmonger
