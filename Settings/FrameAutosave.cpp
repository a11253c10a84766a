#include "Settings/FrameAutosave.h"

#include <array>
#include <charconv>
#include <cmath>

namespace settings {

namespace {

// No desktop reaches further, in points.
constexpr double furthest = 100000;
constexpr std::size_t longestText = 128;

// Takes a number and the blank behind it from the front of `text`.
std::optional<double> takeNumber(std::string_view& text) {
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || !std::isfinite(number) || std::abs(number) > furthest) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  if (text.starts_with(' ')) text.remove_prefix(1);
  return number;
}

}  // namespace

std::optional<Frame> FrameAutosave::frame(std::string_view name) const {
  const auto object = m_store.objectForKey(name);
  const auto* stored = object ? object->as<std::string>() : nullptr;
  if (stored == nullptr || stored->size() > longestText) return std::nullopt;
  std::string_view text = *stored;
  std::array<double, 4> numbers{};
  for (double& number : numbers) {
    const auto taken = takeNumber(text);
    if (!taken) return std::nullopt;
    number = *taken;
  }
  if (!text.empty() || numbers[2] < 0 || numbers[3] < 0) return std::nullopt;
  return Frame{numbers[0], numbers[1], numbers[2], numbers[3]};
}

void FrameAutosave::save(std::string_view name, const Frame& frame) {
  std::string text;
  for (const double number : {frame.left, frame.top, frame.width, frame.height}) {
    if (!text.empty()) text += ' ';
    text += std::to_string(std::lround(number));
  }
  m_store.setObject(name, text);
}

}  // namespace settings
