#pragma once

#include <array>
#include <cstdint>

#include "Quillmonger/detection/RGBColor.h"

namespace quillmonger {

/// What a colour's components mean.
enum class ColorSpace : std::uint8_t {
  genericRGB,   ///< red, green and blue, as a text states them
  genericGray,  ///< the first component is the brightness
};

/// A colour, without the toolkit that shows it.
struct Color {
  ColorSpace space = ColorSpace::genericRGB;
  std::array<double, 3> components{};  ///< each from 0 to 1
  double alpha = 1;                    ///< from 0 (clear) to 1 (opaque)

  friend bool operator==(const Color&, const Color&) = default;
};

/// An opaque colour. A `space` without red, green and blue stops the process.
[[nodiscard]] Color makeColor(ColorSpace space, const RGBColor& components);

/// Red, green and blue of `color`; the opacity is ignored. A `space` without red, green and blue stops the process, and
/// so does a `color` of another space, since nothing here converts between spaces.
[[nodiscard]] RGBColor colorComponents(const Color& color, ColorSpace space);

}  // namespace quillmonger
