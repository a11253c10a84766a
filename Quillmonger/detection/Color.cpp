#include "Quillmonger/detection/Color.h"

#include <string>

#include "Foundation/Fatal.h"

namespace quillmonger {

namespace {

std::string descriptionOf(ColorSpace space) {
  return space == ColorSpace::genericRGB ? "the generic RGB color space" : "the generic gray color space";
}

// Without the components: they may come from the clipboard.
std::string descriptionOf(const Color& color) { return "a color in " + descriptionOf(color.space); }

void requireRGBModel(ColorSpace space) {
  if (space != ColorSpace::genericRGB) foundation::stopProcess("Color space must have RGB model.");
}

}  // namespace

Color makeColor(ColorSpace space, const RGBColor& components) {
  requireRGBModel(space);
  return {space, {components.red(), components.green(), components.blue()}, 1};
}

RGBColor colorComponents(const Color& color, ColorSpace space) {
  requireRGBModel(space);
  if (color.space != space) {
    foundation::stopProcess("Failed to convert " + descriptionOf(color) + " to RGBColor using " + descriptionOf(space) +
                            ".");
  }
  return {color.components[0], color.components[1], color.components[2]};
}

}  // namespace quillmonger
