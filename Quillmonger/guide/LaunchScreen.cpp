#include "Quillmonger/guide/LaunchScreen.h"

#include <algorithm>
#include <array>

namespace quillmonger {

namespace {

constexpr std::array flow{LaunchScreen::welcome,    LaunchScreen::startup,      LaunchScreen::paste,
                          LaunchScreen::formatting, LaunchScreen::search,       LaunchScreen::preview,
                          LaunchScreen::settings,   LaunchScreen::accessibility};

}  // namespace

std::optional<LaunchScreen> screenAfter(LaunchScreen screen) {
  const auto next = std::ranges::find(flow, screen) + 1;
  return next == flow.end() ? std::nullopt : std::optional(*next);
}

std::optional<LaunchScreen> screenBefore(LaunchScreen screen) {
  const auto place = std::ranges::find(flow, screen);
  return place == flow.begin() ? std::nullopt : std::optional(*(place - 1));
}

}  // namespace quillmonger
