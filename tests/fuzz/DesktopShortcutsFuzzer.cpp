#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/desktopshortcuts/KdeAccelerators.h"
#include "Platform/desktopshortcuts/OpenboxAccelerators.h"
#include "Platform/desktopshortcuts/XfceAccelerators.h"
#include "tests/fuzz/Check.h"

namespace {

constexpr std::uint32_t serviceBits = 0x1B00;

void checkAccelerators(const std::vector<platform::Accelerator>& accelerators, std::string_view file) {
  fuzz::check(accelerators.size() <= file.size());
  for (const auto& accelerator : accelerators)
    fuzz::check((accelerator.modifiers.value_or(0) & ~serviceBits) == 0);
}

}  // namespace

// Whatever a desktop's file holds names no more chords than it has bytes, with the four modifiers alone.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view file(reinterpret_cast<const char*>(bytes), size);
  checkAccelerators(platform::kdeAccelerators(file), file);
  if (const auto accelerators = platform::openboxAccelerators(file)) checkAccelerators(*accelerators, file);
  if (const auto accelerators = platform::xfceAccelerators({std::string(file)})) {
    checkAccelerators(*accelerators, file);
  }
  return 0;
}
