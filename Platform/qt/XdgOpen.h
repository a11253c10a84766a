#pragma once

#include <functional>

#include "Foundation/Url.h"

namespace platform {

/// Hands an address to the program that the desktop has for it, by `xdg-open`, which outlives this program. Whether
/// that could be started. `failed` is called in a later turn when it ends and says that it could not open the address;
/// it can end as late as the program that it opened. Main thread, after the application object.
[[nodiscard]] bool xdgOpen(const foundation::Url& url, std::function<void()> failed);

}  // namespace platform
