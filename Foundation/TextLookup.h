#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace foundation {

/// Gives the text of a key in the user's language. Main thread.
using TextLookup = std::function<std::string(std::string_view key)>;

}  // namespace foundation
