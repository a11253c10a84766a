#include "Defaults/Base64.h"

#include <nettle/base64.h>

namespace defaults {

std::string encodeBase64(const Bytes& bytes) {
  std::string text(BASE64_ENCODE_RAW_LENGTH(bytes.size()), '\0');
  base64_encode_raw(text.data(), bytes.size(), bytes.data());
  return text;
}

std::optional<Bytes> decodeBase64(std::string_view text) {
  base64_decode_ctx context{};
  base64_decode_init(&context);
  Bytes bytes(BASE64_DECODE_LENGTH(text.size()));
  std::size_t size = bytes.size();
  if (base64_decode_update(&context, &size, bytes.data(), text.size(), text.data()) == 0) return std::nullopt;
  if (base64_decode_final(&context) == 0) return std::nullopt;
  bytes.resize(size);
  return bytes;
}

}  // namespace defaults
