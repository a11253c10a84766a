#include "Platform/desktopshortcuts/KdeAccelerators.h"

#include <string>

#include "Platform/desktopshortcuts/Parts.h"

namespace platform {

namespace {

// The first field of a list: the chords in use, before the preset ones and the action's name. A comma of its own is
// escaped twice, for the list and for the file.
std::string firstField(std::string_view value) {
  std::string field;
  for (std::size_t index = 0; index < value.size() && value[index] != ','; ++index) {
    if (value[index] != '\\') {
      field += value[index];
    } else if (value.substr(index).starts_with("\\\\,")) {
      field += ',';
      index += 2;
    } else if (++index < value.size()) {
      field += value[index] == 't' ? '\t' : value[index];
    }
  }
  return field;
}

}  // namespace

std::vector<Accelerator> kdeAccelerators(std::string_view file) {
  std::vector<Accelerator> accelerators;
  for (const auto line : parts(file, '\n')) {
    const auto equals = line.find('=');
    if (equals == std::string_view::npos || line.starts_with("_k_")) continue;
    const std::string field = firstField(line.substr(equals + 1));
    for (const auto chord : parts(field, '\t')) {
      if (const auto accelerator = qtAccelerator(chord)) accelerators.push_back(*accelerator);
    }
  }
  return accelerators;
}

}  // namespace platform
