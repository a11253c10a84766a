#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "KeyboardShortcuts/Shortcut.h"
#include "Sauce/InputSourceService.h"

namespace keyboardshortcuts {

/// One entry of a menu, with the chord that it shows and reacts to while its menu is in reach.
struct MenuItem {
  std::string title;
  /// The character of the chord; empty without one. A capital letter counts as also holding Shift.
  std::string keyEquivalent;
  /// Event flags.
  std::uint32_t keyEquivalentModifierMask = 0;
  /// Whether the desktop may move the chord to where another layout has it.
  bool allowsAutomaticKeyEquivalentLocalization = true;
  std::vector<MenuItem> submenu;

  /// Shows the chord on the item, or none.
  void setShortcut(const std::optional<Shortcut>& shortcut, const sauce::InputSourceService& inputSources);
};

/// The first item, depth first, that reacts to the chord; null without one.
[[nodiscard]] const MenuItem* takenByMainMenu(const Shortcut& shortcut, const std::vector<MenuItem>& mainMenu,
                                              const sauce::InputSourceService& inputSources);

}  // namespace keyboardshortcuts
