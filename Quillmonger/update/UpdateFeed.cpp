#include "Quillmonger/update/UpdateFeed.h"

#include <utility>

namespace quillmonger {

std::optional<UpdateFeed> UpdateFeed::parse(std::string_view text) {
  // Of 32 bytes in Base64.
  constexpr std::size_t keyLength = 44;
  const auto end = text.find('\n');
  if (end == std::string_view::npos || !text.ends_with('\n')) return std::nullopt;
  auto address = foundation::Url::parse(text.substr(0, end));
  const auto key = text.substr(end + 1, text.size() - end - 2);
  if (!address || address->scheme() != "https" || key.size() != keyLength) return std::nullopt;
  return UpdateFeed{*std::move(address), std::string(key)};
}

}  // namespace quillmonger
