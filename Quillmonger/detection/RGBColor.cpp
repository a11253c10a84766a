#include "Quillmonger/detection/RGBColor.h"

#include "Foundation/Fatal.h"
#include "Quillmonger/detection/HSLColor.h"

namespace quillmonger {

namespace {

double checked(double component) {
  // Written so that what is no number fails too.
  if (!(component >= 0 && component <= 1)) foundation::stopProcess("An RGB component must lie between 0 and 1.");
  return component;
}

double hue2rgb(double p, double q, double t) {
  if (t < 0) t += 1;
  if (t > 1) t -= 1;
  if (t * 6 < 1) return p + t * ((q - p) * 6);
  if (t + t < 1) return q;
  if (t * 3 < 2) return p + (2.0 / 3.0 - t) * (q - p) * 6;
  return p;
}

}  // namespace

RGBColor::RGBColor(double red, double green, double blue)
    : m_red(checked(red)), m_green(checked(green)), m_blue(checked(blue)) {}

RGBColor rgbFromHSL(const HSLColor& color) {
  const double s = color.saturation();
  const double l = color.lightness();
  if (s == 0) return {l, l, l};
  const double q = l < 0.5 ? (s + 1) * l : s + l - s * l;
  const double p = l + l - q;
  constexpr double third = 1.0 / 3.0;
  return {hue2rgb(p, q, color.hue() + third), hue2rgb(p, q, color.hue()), hue2rgb(p, q, color.hue() - third)};
}

}  // namespace quillmonger
