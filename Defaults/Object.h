#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace defaults {

/// A stored form: what the key-value store holds under a name. Each kind keeps its own width.
using Object = std::variant<bool, std::int64_t, float, double, std::string, std::vector<std::string>>;

}  // namespace defaults
