#include "Foundation/Digest.h"

#include <nettle/md5.h>
#include <nettle/sha2.h>

namespace foundation {

namespace {

const std::uint8_t* unsignedBytes(std::string_view bytes) {
  return reinterpret_cast<const std::uint8_t*>(bytes.data());
}

}  // namespace

struct Md5::State {
  md5_ctx context;
};

Md5::Md5() : m_state(std::make_unique<State>()) { md5_init(&m_state->context); }
Md5::~Md5() = default;

void Md5::append(std::string_view bytes) { md5_update(&m_state->context, bytes.size(), unsignedBytes(bytes)); }

std::string Md5::finish() {
  std::array<std::uint8_t, MD5_DIGEST_SIZE> digest;
  md5_digest(&m_state->context, digest.size(), digest.data());
  constexpr std::string_view hex = "0123456789abcdef";
  std::string text;
  text.reserve(digest.size() * 2);
  for (const std::uint8_t byte : digest) {
    text += hex[byte >> 4];
    text += hex[byte & 0x0F];
  }
  return text;
}

Sha256 sha256(std::string_view bytes) {
  sha256_ctx context;
  sha256_init(&context);
  sha256_update(&context, bytes.size(), unsignedBytes(bytes));
  Sha256 digest;
  sha256_digest(&context, digest.size(), digest.data());
  return digest;
}

}  // namespace foundation
