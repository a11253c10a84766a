#pragma once

namespace quillmonger {

class HSLColor;

/// Red, green and blue, each from 0 to 1 inclusive; another component, or none that is a number, stops the process.
class RGBColor final {
 public:
  RGBColor(double red, double green, double blue);

  [[nodiscard]] double red() const { return m_red; }
  [[nodiscard]] double green() const { return m_green; }
  [[nodiscard]] double blue() const { return m_blue; }

  friend bool operator==(const RGBColor&, const RGBColor&) = default;

 private:
  double m_red;
  double m_green;
  double m_blue;
};

[[nodiscard]] RGBColor rgbFromHSL(const HSLColor& color);

}  // namespace quillmonger
