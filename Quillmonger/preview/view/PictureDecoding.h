#pragma once

#include <QImage>

#include "Foundation/Data.h"

namespace quillmonger {

/// The picture, no larger than `width` pixels across and than a few million pixels in all. It is scaled while it is
/// read, as far as its format allows. Null for what is no PNG, JPEG or TIFF picture, or too large to be read at all.
/// Reads the whole picture: beside the main thread. Any thread.
[[nodiscard]] QImage decodePicture(const foundation::Data& picture, int width);

}  // namespace quillmonger
