#include "KeyboardShortcuts/MenuItem.h"

#include "Foundation/Text.h"
#include "KeyboardShortcuts/ShortcutDescription.h"
#include "Sauce/ModifierTransformer.h"

namespace keyboardshortcuts {

namespace {

constexpr std::uint32_t shiftFlag = 0x20000;

bool reactsTo(const MenuItem& item, const std::string& character, std::uint32_t eventFlags) {
  const std::string lowered = foundation::lowercased(item.keyEquivalent);
  const std::uint32_t shift = lowered == item.keyEquivalent ? 0 : shiftFlag;
  return lowered == character && (item.keyEquivalentModifierMask | shift) == eventFlags;
}

const MenuItem* firstThatReacts(const std::vector<MenuItem>& items, const std::string& character,
                                std::uint32_t eventFlags) {
  for (const MenuItem& item : items) {
    if (reactsTo(item, character, eventFlags)) return &item;
    if (const MenuItem* found = firstThatReacts(item.submenu, character, eventFlags)) return found;
  }
  return nullptr;
}

std::uint32_t flagsOf(const Shortcut& shortcut) {
  return sauce::ModifierTransformer::eventFlags(static_cast<std::uint32_t>(shortcut.carbonModifiers));
}

}  // namespace

void MenuItem::setShortcut(const std::optional<Shortcut>& shortcut, const sauce::InputSourceService& inputSources) {
  keyEquivalent = shortcut ? characterOf(*shortcut, inputSources).value_or("") : "";
  keyEquivalentModifierMask = shortcut ? flagsOf(*shortcut) : 0;
  allowsAutomaticKeyEquivalentLocalization = !shortcut;
}

const MenuItem* takenByMainMenu(const Shortcut& shortcut, const std::vector<MenuItem>& mainMenu,
                                const sauce::InputSourceService& inputSources) {
  const auto character = characterOf(shortcut, inputSources);
  return character ? firstThatReacts(mainMenu, *character, flagsOf(shortcut)) : nullptr;
}

}  // namespace keyboardshortcuts
