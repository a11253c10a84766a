#include "Platform/keyboard/XkbRulesNames.h"

#include <algorithm>
#include <cstddef>

namespace platform {

namespace {

constexpr std::size_t longestProperty = 1024;
constexpr std::size_t longestName = 64;
constexpr std::size_t mostLayouts = 32;
// The rules, the model, the layouts, the variants, the options.
constexpr std::size_t layoutField = 2;
constexpr std::size_t variantField = 3;

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

bool isNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
         std::string_view("_-.()").find(c) != std::string_view::npos;
}

bool isName(std::string_view text) { return text.size() <= longestName && std::ranges::all_of(text, isNameCharacter); }

}  // namespace

std::vector<std::string> layoutIdentifiers(std::string_view property) {
  if (property.size() > longestProperty) return {};
  const auto fields = split(property, '\0');
  if (fields.size() <= variantField) return {};
  const auto layouts = split(fields[layoutField], ',');
  const auto variants = split(fields[variantField], ',');
  if (layouts.size() > mostLayouts) return {};
  std::vector<std::string> identifiers;
  for (std::size_t index = 0; index < layouts.size(); ++index) {
    const std::string_view layout = layouts[index];
    const std::string_view variant = index < variants.size() ? variants[index] : std::string_view();
    if (layout.empty() || !isName(layout) || !isName(variant)) return {};
    identifiers.emplace_back(layout);
    if (!variant.empty()) identifiers.back().append("(").append(variant).append(")");
  }
  return identifiers;
}

}  // namespace platform
