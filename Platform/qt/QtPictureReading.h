#pragma once

#include "Quillmonger/history/PictureReading.h"

namespace platform {

/// Pictures of every kind that Qt's readers know. A point is a pixel; a picture that says that it stands on its side is
/// turned first.
class QtPictureReading final : public quillmonger::PictureReading {
 public:
  /// The most that any picture of the process may take once it is decoded.
  static constexpr int allocationLimitInMegabytes = 512;

  QtPictureReading();

  [[nodiscard]] std::optional<quillmonger::PictureSize> size(const foundation::Data& picture) const override;
  [[nodiscard]] std::optional<std::vector<std::uint32_t>> pixels(const foundation::Data& picture,
                                                                 int edge) const override;
};

}  // namespace platform
