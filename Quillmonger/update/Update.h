#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "Foundation/Url.h"

namespace quillmonger {

/// A version that the feed offers and whose makers' signature has been checked.
struct Update {
  /// Bytes of the address.
  static constexpr std::size_t addressLimit = 2048;
  /// Bytes of the file.
  static constexpr std::uint64_t lengthLimit = std::uint64_t{1} << 29U;

  std::string version;
  /// What is new in it, as plain text.
  std::string notes;
  /// Where its file is, by HTTPS.
  foundation::Url url;
  /// The file's, in bytes.
  std::uint64_t length = 0;
  /// The file's SHA-256 digest, as 64 lower-case hexadecimal digits.
  std::string sha256;

  bool operator==(const Update&) const = default;
};

/// Whether it names what can be: a version, an address by HTTPS, a length and a digest, all within their limits. Any
/// thread.
[[nodiscard]] bool isUsable(const Update& update);

/// Why there is no answer, or no file.
enum class UpdateFailure {
  unreachable,  ///< no connection, no answer, or one that stopped coming
  untrusted,    ///< the feed is not signed by the key that this program knows, or makes no sense
  damaged,      ///< the file is not the one that the feed announced
  notWritten,   ///< the file could not be stored
  notOpened     ///< no program of the desktop takes the file
};

}  // namespace quillmonger
