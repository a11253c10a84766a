#include "Defaults/ColorBridge.h"

#include <algorithm>
#include <bit>
#include <cstdint>

namespace defaults {

namespace {

constexpr std::array<std::uint8_t, 4> tag{'R', 'G', 'B', 'A'};
constexpr std::size_t width = 8;

bool isComponent(double value) { return value >= 0 && value <= 1; }

}  // namespace

std::optional<Bytes> archivedColor(const std::array<double, 4>& components) {
  if (!std::ranges::all_of(components, isComponent)) return std::nullopt;
  Bytes bytes(tag.begin(), tag.end());
  for (const double component : components) {
    const auto bits = std::bit_cast<std::uint64_t>(component);
    for (std::size_t place = 0; place < width; ++place)
      bytes.push_back(static_cast<std::uint8_t>(bits >> (8 * place)));
  }
  return bytes;
}

std::optional<std::array<double, 4>> unarchivedColor(const Bytes& bytes) {
  std::array<double, 4> components{};
  if (bytes.size() != tag.size() + components.size() * width) return std::nullopt;
  if (!std::equal(tag.begin(), tag.end(), bytes.begin())) return std::nullopt;
  auto next = bytes.begin() + tag.size();
  for (double& component : components) {
    std::uint64_t bits = 0;
    for (std::size_t place = 0; place < width; ++place)
      bits |= std::uint64_t{*next++} << (8 * place);
    component = std::bit_cast<double>(bits);
  }
  if (!std::ranges::all_of(components, isComponent)) return std::nullopt;
  return components;
}

}  // namespace defaults
