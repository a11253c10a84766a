#include "Quillmonger/detection/HSLColor.h"

#include <algorithm>

#include "Foundation/Fatal.h"
#include "Quillmonger/detection/RGBColor.h"

namespace quillmonger {

namespace {

double checked(double component) {
  // Written so that what is no number fails too.
  if (!(component >= 0 && component <= 1)) foundation::stopProcess("An HSL component must lie between 0 and 1.");
  return component;
}

// In degrees. `difference` is the largest component less the smallest, and not 0.
double hueOf(const RGBColor& color, double largest, double difference) {
  double hue = 0;
  if (largest == color.red()) {
    hue = (color.green() - color.blue()) / difference;
  } else if (largest == color.green()) {
    hue = (color.blue() - color.red()) / difference + 2;
  } else {
    hue = (color.red() - color.green()) / difference + 4;
  }
  hue *= 60;
  if (hue > 360) return 360;
  return hue < 0 ? hue + 360 : hue;
}

}  // namespace

HSLColor::HSLColor(double hue, double saturation, double lightness)
    : m_hue(checked(hue)), m_saturation(checked(saturation)), m_lightness(checked(lightness)) {}

HSLColor hslFromRGB(const RGBColor& color) {
  const double smallest = std::min({color.red(), color.green(), color.blue()});
  const double largest = std::max({color.red(), color.green(), color.blue()});
  const double lightness = (smallest + largest) * 0.5;
  if (largest == smallest) return {0, 0, lightness};
  const double difference = largest - smallest;
  const double saturation = difference / (lightness <= 0.5 ? smallest + largest : 2 - largest - smallest);
  return {hueOf(color, largest, difference) / 360, saturation, lightness};
}

}  // namespace quillmonger
