#include "Platform/update/helper/FileDigest.h"

#include <nettle/sha2.h>

#include <array>
#include <cstdint>
#include <fstream>
#include <system_error>

namespace platform {

std::optional<std::string> sha256OfFile(const std::filesystem::path& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  sha256_ctx context;
  sha256_init(&context);
  std::array<char, 65536> buffer;
  while (file.read(buffer.data(), buffer.size()) || file.gcount() > 0)
    sha256_update(&context, static_cast<std::size_t>(file.gcount()),
                  reinterpret_cast<const std::uint8_t*>(buffer.data()));
  if (!file.eof()) return std::nullopt;
  std::array<std::uint8_t, SHA256_DIGEST_SIZE> digest;
  sha256_digest(&context, digest.size(), digest.data());
  constexpr std::string_view hexadecimal = "0123456789abcdef";
  std::string text;
  for (const std::uint8_t byte : digest) {
    text += hexadecimal[byte >> 4U];
    text += hexadecimal[byte & 0x0FU];
  }
  return text;
}

}  // namespace platform
