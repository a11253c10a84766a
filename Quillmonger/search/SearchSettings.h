#pragma once

#include "Quillmonger/search/TextMatcher.h"

namespace defaults {
class Defaults;
}

namespace quillmonger {

/// The user's search settings as they stand now.
[[nodiscard]] SearchOptions searchOptions(const defaults::Defaults& defaults);

}  // namespace quillmonger
