#pragma once

#include <string_view>

namespace defaults {

/// Whether at most `limit` lists and objects lie within each other in a JSON text. Asked before a text is parsed: the
/// parser and the destructor of a document must never meet one that is deeper than ours can be. Any thread.
[[nodiscard]] bool isDepthBounded(std::string_view text, int limit);

}  // namespace defaults
