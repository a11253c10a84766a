#include "Quillmonger/update/Update.h"

#include "Quillmonger/update/SoftwareVersion.h"

namespace quillmonger {

bool isUsable(const Update& update) {
  constexpr std::size_t digestLength = 64;
  const bool hasDigest =
      update.sha256.size() == digestLength && update.sha256.find_first_not_of("0123456789abcdef") == std::string::npos;
  const bool hasAddress = update.url.scheme() == "https" && update.url.absoluteString().size() <= Update::addressLimit;
  const bool hasLength = update.length > 0 && update.length <= Update::lengthLimit;
  return hasDigest && hasAddress && hasLength && SoftwareVersion::parse(update.version).has_value();
}

}  // namespace quillmonger
