#include "Quillmonger/capture/Payload.h"

#include "Foundation/Digest.h"

namespace quillmonger {

namespace {

constexpr std::size_t partSize = std::size_t{256} << 10;

// In parts, so that bytes which rest in the store are not brought into memory as a whole.
void append(foundation::Md5& digest, const foundation::Data& data) {
  if (data.size() <= foundation::Data::residentLimit) {
    digest.append(*data.bytes());
    return;
  }
  for (std::size_t offset = 0; offset < data.size(); offset += partSize)
    digest.append(data.part(offset, partSize));
}

}  // namespace

std::string payloadDigest(const Payload& payload) {
  foundation::Md5 digest;
  for (const auto& [type, data] : payload) {
    digest.append(type);
    if (data) append(digest, *data);
  }
  return digest.finish();
}

}  // namespace quillmonger
