#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// The entries of a text/uri-list (RFC 2483), in its order and without its comments, and those alone that have a
/// scheme; not every owner escapes the rest of a URL as it should. Any thread.
struct UriList {
  struct Entry {
    std::string url;
    bool isFile;
  };
  std::vector<Entry> entries;

  /// More entries than this are left out.
  static constexpr std::size_t limit = 10'000;

  [[nodiscard]] static UriList parse(std::string_view text);
};

}  // namespace platform
