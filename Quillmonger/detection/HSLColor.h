#pragma once

namespace quillmonger {

class RGBColor;

/// Hue, saturation and lightness, each from 0 to 1 inclusive; another component, or none that is a number, stops the
/// process. The hue is the fraction of a full turn.
class HSLColor final {
 public:
  HSLColor(double hue, double saturation, double lightness);

  [[nodiscard]] double hue() const { return m_hue; }
  [[nodiscard]] double saturation() const { return m_saturation; }
  [[nodiscard]] double lightness() const { return m_lightness; }

  friend bool operator==(const HSLColor&, const HSLColor&) = default;

 private:
  double m_hue;
  double m_saturation;
  double m_lightness;
};

[[nodiscard]] HSLColor hslFromRGB(const RGBColor& color);

}  // namespace quillmonger
