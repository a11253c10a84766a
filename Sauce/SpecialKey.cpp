#include "Sauce/SpecialKey.h"

#include <algorithm>
#include <array>

namespace sauce {

namespace {

struct Range {
  KeyCode first;
  KeyCode last;
};

constexpr auto ranges = std::to_array<Range>({{36, 36},
                                              {48, 49},
                                              {51, 51},
                                              {53, 53},
                                              {64, 64},
                                              {71, 71},
                                              {76, 76},
                                              {79, 80},
                                              {90, 90},
                                              {96, 107},
                                              {109, 109},
                                              {111, 111},
                                              {113, 126}});

}  // namespace

std::optional<std::string> specialKeyName(KeyCode keyCode) {
  const bool isSpecial = std::ranges::any_of(
      ranges, [keyCode](const Range& range) { return range.first <= keyCode && keyCode <= range.last; });
  const auto key = isSpecial ? keyWithQWERTYKeyCode(keyCode) : std::nullopt;
  if (!key) return std::nullopt;
  if (key == Key::help) return "?\u20DD";
  std::string name(rawValue(*key));
  name.front() = static_cast<char>(name.front() - 'a' + 'A');
  return name;
}

}  // namespace sauce
