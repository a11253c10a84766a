#pragma once

#include "Foundation/Data.h"

namespace quillmonger {

/// Whether a JPEG picture of so many pixels takes too long or too much room to be read, however far it is scaled down
/// while it is read. One whose pixels come in a single scan takes time alone. One in several, progressive or a scan for
/// each component, is held as a whole until the last has come: two bytes for each component of a pixel (ITU-T T.81,
/// annexes A.2.3 and G). What has no clear head counts as the worst. Reads little of it. Any thread.
[[nodiscard]] bool isTooLargeJpeg(const foundation::Data& picture, double pixels);

}  // namespace quillmonger
