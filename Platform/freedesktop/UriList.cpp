#include "Platform/freedesktop/UriList.h"

#include <algorithm>
#include <cctype>

namespace platform {

namespace {

bool isSchemeCharacter(char character) {
  return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '+' || character == '-' ||
         character == '.';
}

// The length of the scheme that the line starts with; 0 when it starts with none.
std::size_t schemeLength(std::string_view line) {
  if (line.empty() || std::isalpha(static_cast<unsigned char>(line.front())) == 0) return 0;
  const auto end = std::ranges::find_if_not(line, isSchemeCharacter);
  return end != line.end() && *end == ':' ? static_cast<std::size_t>(end - line.begin()) : 0;
}

bool isFileScheme(std::string_view scheme) {
  return std::ranges::equal(scheme, std::string_view("file"), {},
                            [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
}

bool hasControls(std::string_view line) {
  return std::ranges::any_of(line, [](char c) { return std::iscntrl(static_cast<unsigned char>(c)) != 0; });
}

}  // namespace

UriList UriList::parse(std::string_view text) {
  // Some owners send the C string's end along.
  while (text.ends_with('\0'))
    text.remove_suffix(1);
  UriList list;
  while (!text.empty() && list.entries.size() < limit) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    while (line.starts_with(' '))
      line.remove_prefix(1);
    while (line.ends_with(' '))
      line.remove_suffix(1);
    // A comment starts with "#", which no scheme does.
    const std::size_t scheme = schemeLength(line);
    if (scheme == 0 || hasControls(line)) continue;
    list.entries.push_back({std::string(line), isFileScheme(line.substr(0, scheme))});
  }
  return list;
}

}  // namespace platform
