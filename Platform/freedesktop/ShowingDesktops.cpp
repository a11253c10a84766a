#include "Platform/freedesktop/ShowingDesktops.h"

#include <algorithm>
#include <string_view>

namespace platform {

namespace {

bool contains(const std::vector<std::string>& list, const std::string& word) {
  return std::ranges::find(list, word) != list.end();
}

}  // namespace

std::vector<std::string> partsOf(const std::string& list) {
  std::vector<std::string> parts;
  std::string_view rest = list;
  while (!rest.empty()) {
    const auto end = std::min(rest.find(':'), rest.size());
    if (end > 0) parts.emplace_back(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return parts;
}

// The first of the desktop's names that one of the lists has decides.
bool isShownByDesktop(const std::vector<std::string>& desktops, const std::vector<std::string>& onlyShowIn,
                      const std::vector<std::string>& notShowIn) {
  for (const auto& desktop : desktops) {
    if (contains(onlyShowIn, desktop)) return true;
    if (contains(notShowIn, desktop)) return false;
  }
  return onlyShowIn.empty();
}

}  // namespace platform
