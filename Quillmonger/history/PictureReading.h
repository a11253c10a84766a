#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "Foundation/Data.h"

namespace quillmonger {

/// In points: the size at which a picture is shown.
struct PictureSize {
  double width = 0;
  double height = 0;

  bool operator==(const PictureSize&) const = default;
};

/// Reads encoded pictures of any program. They are hostile until read: what is too large or malformed is no picture.
/// Any thread, several at once.
class PictureReading {
 public:
  PictureReading() = default;
  PictureReading(const PictureReading&) = delete;
  PictureReading& operator=(const PictureReading&) = delete;
  virtual ~PictureReading() = default;

  /// From the picture's head alone; absent when it is no picture. Neither is 0 or less.
  [[nodiscard]] virtual std::optional<PictureSize> size(const foundation::Data& picture) const = 0;
  /// The whole picture drawn over `edge` times `edge` pixels, row by row: 0xAARRGGBB, premultiplied. Absent when it
  /// can't be decoded.
  [[nodiscard]] virtual std::optional<std::vector<std::uint32_t>> pixels(const foundation::Data& picture,
                                                                         int edge) const = 0;
};

}  // namespace quillmonger
