#include "Platform/desktopshortcuts/OpenboxAccelerators.h"

#include <string>

#include "Platform/desktopshortcuts/Markup.h"
#include "Platform/desktopshortcuts/Parts.h"

namespace platform {

std::optional<std::vector<Accelerator>> openboxAccelerators(std::string_view file) {
  std::vector<Accelerator> accelerators;
  int depth = 0;
  const auto begin = [&](std::string_view element, const MarkupHandler::Attribute& attribute) {
    if (element != "keybind" || ++depth != 1) return;
    const std::string key = attribute("key").value_or("");
    for (const auto part : parts(key, ' ')) {
      if (const auto accelerator = openboxAccelerator(part)) accelerators.push_back(*accelerator);
    }
  };
  const auto end = [&depth](std::string_view element) {
    if (element == "keybind") --depth;
  };
  if (readMarkup(file, {begin, end}) == MarkupOutcome::damaged) return std::nullopt;
  return accelerators;
}

}  // namespace platform
