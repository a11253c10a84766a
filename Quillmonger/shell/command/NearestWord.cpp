#include "Quillmonger/shell/command/NearestWord.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quillmonger {

namespace {

constexpr std::size_t furthest = 2;

// How many letters have to be put in, left out, changed or swapped with their neighbour.
std::size_t distance(std::string_view first, std::string_view second) {
  const std::size_t width = second.size() + 1;
  std::vector<std::size_t> costs((first.size() + 1) * width);
  const auto cost = [&costs, width](std::size_t row, std::size_t column) -> std::size_t& {
    return costs[row * width + column];
  };
  for (std::size_t row = 0; row <= first.size(); ++row) {
    for (std::size_t column = 0; column < width; ++column) {
      if (row == 0 || column == 0) {
        cost(row, column) = row + column;
        continue;
      }
      const std::size_t change = first[row - 1] == second[column - 1] ? 0 : 1;
      std::size_t best =
          std::min({cost(row - 1, column) + 1, cost(row, column - 1) + 1, cost(row - 1, column - 1) + change});
      const bool isSwapped =
          row > 1 && column > 1 && first[row - 1] == second[column - 2] && first[row - 2] == second[column - 1];
      if (isSwapped) best = std::min(best, cost(row - 2, column - 2) + 1);
      cost(row, column) = best;
    }
  }
  return costs.back();
}

}  // namespace

std::optional<std::string_view> nearestWord(std::string_view word, std::span<const std::string_view> candidates) {
  std::optional<std::string_view> nearest;
  std::size_t least = furthest + 1;
  for (const auto candidate : candidates) {
    const std::size_t lengths = std::max(word.size(), candidate.size()) - std::min(word.size(), candidate.size());
    if (lengths > furthest) continue;
    const std::size_t apart = distance(word, candidate);
    if (apart >= least || apart >= word.size()) continue;
    nearest = candidate;
    least = apart;
  }
  return nearest;
}

}  // namespace quillmonger
