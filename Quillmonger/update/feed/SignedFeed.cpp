#include "Quillmonger/update/feed/SignedFeed.h"

#include <nettle/eddsa.h>

#include <algorithm>

#include "Defaults/Base64.h"

namespace quillmonger {

namespace {

constexpr std::string_view opening = "\n<!-- ed25519 ";
constexpr std::string_view closing = " -->\n";

template <std::size_t size>
std::optional<std::array<std::uint8_t, size>> decoded(std::string_view base64) {
  const auto bytes = defaults::decodeBase64(base64);
  if (!bytes || bytes->size() != size) return std::nullopt;
  std::array<std::uint8_t, size> result{};
  std::ranges::copy(*bytes, result.begin());
  return result;
}

}  // namespace

std::optional<PublicKey> parsePublicKey(std::string_view base64) { return decoded<ED25519_KEY_SIZE>(base64); }

std::optional<std::string_view> signedPart(std::string_view feed, const PublicKey& key) {
  if (feed.size() > feedSizeLimit || !feed.ends_with(closing)) return std::nullopt;
  const auto mark = feed.rfind(opening);
  if (mark == std::string_view::npos) return std::nullopt;
  const auto base64 = feed.substr(mark + opening.size());
  const auto signature = decoded<ED25519_SIGNATURE_SIZE>(base64.substr(0, base64.size() - closing.size()));
  // The line end before the signature is signed as well.
  const auto content = feed.substr(0, mark + 1);
  if (!signature ||
      ed25519_sha512_verify(key.data(), content.size(), reinterpret_cast<const std::uint8_t*>(content.data()),
                            signature->data()) == 0) {
    return std::nullopt;
  }
  return content;
}

}  // namespace quillmonger
