#pragma once

#include "Foundation/RunLoop.h"

namespace quillmonger::fallandbounce {

constexpr foundation::Seconds duration{0.5};

/// How far above its place a picture is that falls into it and rebounds once, in points. `progress`: how much of the
/// duration has passed, from 0 to 1.
[[nodiscard]] double offset(double progress);

}  // namespace quillmonger::fallandbounce
