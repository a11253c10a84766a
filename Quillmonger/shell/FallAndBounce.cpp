#include "Quillmonger/shell/FallAndBounce.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <numeric>

namespace quillmonger::fallandbounce {

namespace {

struct Keyframe {
  double time;
  double value;
};

constexpr std::array<Keyframe, 4> keyframes{{{0, 30}, {0.7, 0}, {0.85, 5}, {1, 0}}};

double bezier(double parameter, double first, double second) {
  const double rest = 1 - parameter;
  return 3 * rest * rest * parameter * first + 3 * rest * parameter * parameter * second +
         parameter * parameter * parameter;
}

// The curve through (0.42, 0) and (0.58, 1).
double easeInEaseOut(double progress) {
  constexpr int halvings = 30;
  double low = 0;
  double high = 1;
  for (int halving = 0; halving < halvings; ++halving) {
    const double middle = std::midpoint(low, high);
    (bezier(middle, 0.42, 0.58) < progress ? low : high) = middle;
  }
  return bezier(low, 0, 1);
}

}  // namespace

double offset(double progress) {
  if (progress <= 0) return keyframes.front().value;
  if (progress >= 1) return keyframes.back().value;
  const double time = easeInEaseOut(progress);
  const auto next = std::ranges::find_if(keyframes, [time](const Keyframe& frame) { return frame.time > time; });
  if (next == keyframes.end()) return keyframes.back().value;
  const auto& from = *std::prev(next);
  return std::lerp(from.value, next->value, (time - from.time) / (next->time - from.time));
}

}  // namespace quillmonger::fallandbounce
