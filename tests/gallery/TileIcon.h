#pragma once

#include <filesystem>
#include <string>

namespace testsupport {

/// Draws an application's icon into `file`: a tile with the name's first letter, in a colour of the name's own.
void drawTileIcon(const std::filesystem::path& file, const std::string& name);

}  // namespace testsupport
