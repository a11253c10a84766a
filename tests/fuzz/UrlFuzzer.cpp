#include <cstddef>
#include <cstdint>
#include <string_view>

#include "Foundation/Url.h"
#include "Platform/freedesktop/UriList.h"
#include "tests/fuzz/Check.h"

namespace {

void checkUrl(std::string_view text) {
  const auto url = foundation::Url::parse(text);
  if (!url) return;
  fuzz::check(url->absoluteString() == text);
  static_cast<void>(url->scheme());
  static_cast<void>(url->host());
  if (const auto path = url->filePath()) fuzz::check(foundation::Url::fromFilePath(*path).filePath() == path);
}

}  // namespace

// A URL is kept as it stands; escaping and decoding are each other's reverse; a list holds nothing but URLs.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(bytes), size);
  checkUrl(text);
  fuzz::check(foundation::removingPercentEscapes(foundation::addingPercentEscapes(text)) == text);
  static_cast<void>(foundation::removingPercentEscapes(text));
  const auto list = platform::UriList::parse(text);
  fuzz::check(list.entries.size() <= platform::UriList::limit);
  for (const auto& entry : list.entries) {
    fuzz::check(entry.url.find(':') != std::string::npos &&
                entry.url.find_first_of("\r\n\0", 0, 3) == std::string::npos);
    const auto url = foundation::Url::parse(entry.url);
    fuzz::check(!url || entry.isFile == (url->scheme() == "file"));
  }
  return 0;
}
