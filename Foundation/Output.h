#pragma once

#include <string_view>

namespace foundation {

/// Writes one diagnostic line to standard output. Never hand it clipboard content, not even a part. Any thread.
void printLine(std::string_view text);
void printLine(std::string_view fixedText, std::string_view detail);

}  // namespace foundation
