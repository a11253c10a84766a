#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Defaults/DefaultsFile.h"
#include "tests/fuzz/Check.h"

// What can be read of a settings file is written and read again as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using defaults::DefaultsFile;
  const auto content = DefaultsFile::decode({reinterpret_cast<const char*>(bytes), size});
  if (!content) return 0;
  const auto text = DefaultsFile::encode(*content);
  const auto again = DefaultsFile::decode(text);
  fuzz::check(again.has_value());
  fuzz::check(DefaultsFile::encode(*again) == text);
  fuzz::check(again->unknown == content->unknown);
  // Not a number is equal to nothing, itself included.
  fuzz::check(again->values == content->values || text.find("\"nan\"") != std::string::npos);
  for (const auto& [name, object] : content->values)
    fuzz::check(!object.isDeeperThan(defaults::Object::depthLimit));
  return 0;
}
