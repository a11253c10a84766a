#include "Quillmonger/input/Action.h"

#include <algorithm>

namespace quillmonger {

namespace {

namespace key {
constexpr std::uint16_t returnKey = 36;
constexpr std::uint16_t comma = 43;
constexpr std::uint16_t deleteKey = 51;
constexpr std::uint16_t escape = 53;
constexpr std::uint16_t leftOption = 58;
constexpr std::uint16_t downArrow = 125;
constexpr std::uint16_t upArrow = 126;
}  // namespace key

}  // namespace

int quickPasteIndex(std::uint16_t keyCode) {
  const auto* const found = std::find(quickPasteKeyCodes.begin(), quickPasteKeyCodes.end(), keyCode);
  return found == quickPasteKeyCodes.end() ? -1 : static_cast<int>(found - quickPasteKeyCodes.begin());
}

Action actionForEvent(const KeyEvent& event) {
  const bool isCommandHeld = (event.modifierFlags & commandFlag) != 0;
  if (isCommandHeld && quickPasteIndex(event.keyCode) >= 0) return Action::select;
  switch (event.keyCode) {
    case key::returnKey:
      return Action::select;
    case key::upArrow:
      return Action::moveUp;
    case key::downArrow:
      return Action::moveDown;
    case key::comma:
      return isCommandHeld ? Action::openSettings : Action::none;
    case key::escape:
      return Action::dismiss;
    case key::leftOption:
      return Action::optionChanged;
    case key::deleteKey:
      return isCommandHeld ? Action::deleteItem : Action::none;
    default:
      return Action::none;
  }
}

}  // namespace quillmonger
