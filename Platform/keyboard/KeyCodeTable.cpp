#include "Platform/keyboard/KeyCodeTable.h"

#include <algorithm>
#include <array>

namespace platform {

namespace {

struct Key {
  std::uint16_t evdev;
  std::uint16_t virtualCode;
};

// In the order of the evdev keys: the main block row by row with the function keys between, the keypad, the
// navigation keys, and what only large keyboards have.
constexpr auto keys = std::to_array<Key>(
    {{1, 53},    {2, 18},    {3, 19},    {4, 20},    {5, 21},    {6, 23},    {7, 22},    {8, 26},    {9, 28},
     {10, 25},   {11, 29},   {12, 27},   {13, 24},   {14, 51},   {15, 48},   {16, 12},   {17, 13},   {18, 14},
     {19, 15},   {20, 17},   {21, 16},   {22, 32},   {23, 34},   {24, 31},   {25, 35},   {26, 33},   {27, 30},
     {28, 36},   {29, 59},   {30, 0},    {31, 1},    {32, 2},    {33, 3},    {34, 5},    {35, 4},    {36, 38},
     {37, 40},   {38, 37},   {39, 41},   {40, 39},   {41, 50},   {42, 56},   {43, 42},   {44, 6},    {45, 7},
     {46, 8},    {47, 9},    {48, 11},   {49, 45},   {50, 46},   {51, 43},   {52, 47},   {53, 44},   {54, 60},
     {55, 67},   {56, 58},   {57, 49},   {58, 57},   {59, 122},  {60, 120},  {61, 99},   {62, 118},  {63, 96},
     {64, 97},   {65, 98},   {66, 100},  {67, 101},  {68, 109},  {69, 71},   {71, 89},   {72, 91},   {73, 92},
     {74, 78},   {75, 86},   {76, 87},   {77, 88},   {78, 69},   {79, 83},   {80, 84},   {81, 85},   {82, 82},
     {83, 65},   {86, 10},   {87, 103},  {88, 111},  {89, 94},   {96, 76},   {97, 62},   {98, 75},   {100, 61},
     {102, 115}, {103, 126}, {104, 116}, {105, 123}, {106, 124}, {107, 119}, {108, 125}, {109, 121}, {110, 114},
     {111, 117}, {113, 74},  {114, 73},  {115, 72},  {117, 81},  {121, 95},  {122, 104}, {123, 102}, {124, 93},
     {125, 55},  {126, 54},  {127, 110}, {183, 105}, {184, 107}, {185, 113}, {186, 106}, {187, 64},  {188, 79},
     {189, 80},  {190, 90}});

static_assert(std::ranges::is_sorted(keys, {}, &Key::evdev));

}  // namespace

std::optional<std::uint16_t> virtualKeyCode(std::uint32_t evdevKey) {
  const auto key = std::ranges::lower_bound(keys, evdevKey, {}, &Key::evdev);
  if (key == keys.end() || key->evdev != evdevKey) return std::nullopt;
  return key->virtualCode;
}

std::optional<std::uint32_t> evdevKey(std::uint32_t virtualKeyCode) {
  const auto key = std::ranges::find(keys, virtualKeyCode, &Key::virtualCode);
  if (key == keys.end()) return std::nullopt;
  return key->evdev;
}

}  // namespace platform
