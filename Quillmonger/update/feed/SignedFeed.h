#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quillmonger {

/// The makers' Ed25519 key, of which this program knows the public half.
using PublicKey = std::array<std::uint8_t, 32>;

/// From Base64; absent for anything but 32 bytes.
[[nodiscard]] std::optional<PublicKey> parsePublicKey(std::string_view base64);

/// Bytes of a feed with its signature.
inline constexpr std::size_t feedSizeLimit = std::size_t{1} << 20U;

/// What stands before the signature that ends a feed ("<!-- ed25519 BASE64 -->" on a line of its own), if `key` has
/// signed exactly that; absent otherwise. Any thread.
[[nodiscard]] std::optional<std::string_view> signedPart(std::string_view feed, const PublicKey& key);

}  // namespace quillmonger
