#include "Quillmonger/settings/ColorScheme.h"

using quillmonger::ColorScheme;

std::optional<defaults::Object> defaults::Bridge<ColorScheme>::serialize(ColorScheme value) {
  return Object(std::int64_t{value == ColorScheme::light ? 1 : 2});
}

std::optional<ColorScheme> defaults::Bridge<ColorScheme>::deserialize(const Object& object) {
  const auto* number = std::get_if<std::int64_t>(&object);
  if (number == nullptr) return std::nullopt;
  if (*number == 1) return ColorScheme::light;
  if (*number == 2) return ColorScheme::dark;
  return std::nullopt;
}
