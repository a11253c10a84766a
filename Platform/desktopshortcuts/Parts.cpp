#include "Platform/desktopshortcuts/Parts.h"

#include <algorithm>

namespace platform {

std::vector<std::string_view> parts(std::string_view text, char separator) {
  std::vector<std::string_view> result;
  while (!text.empty()) {
    const auto end = std::min(text.find(separator), text.size());
    if (end > 0) result.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return result;
}

}  // namespace platform
