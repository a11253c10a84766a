#pragma once

#include "Foundation/Data.h"
#include "Quillmonger/history/PictureReading.h"

namespace quillmonger {

/// An encoded picture and the size at which it is shown. It is decoded by whoever draws it; nothing is scaled before.
struct ScaledPicture {
  foundation::Data picture;
  PictureSize size;
};

}  // namespace quillmonger
