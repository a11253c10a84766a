#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "Foundation/Url.h"

namespace quillmonger {

/// Where this program asks for new versions, and whose word it takes.
struct UpdateFeed {
  /// Bytes of the file that names it.
  static constexpr std::size_t sizeLimit = 4096;

  /// By HTTPS.
  foundation::Url address;
  /// The makers' public Ed25519 key, in Base64.
  std::string publicKey;

  /// From two lines, the address and the key; absent for anything else.
  [[nodiscard]] static std::optional<UpdateFeed> parse(std::string_view text);
};

}  // namespace quillmonger
