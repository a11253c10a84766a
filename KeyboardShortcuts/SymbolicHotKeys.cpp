#include "KeyboardShortcuts/SymbolicHotKeys.h"

#include <algorithm>

#include "Sauce/ModifierTransformer.h"

namespace keyboardshortcuts {

namespace {

// The four modifiers that a chord can have, and nothing else.
std::uint32_t chordFlags(std::int64_t modifiers) {
  return sauce::ModifierTransformer::eventFlags(static_cast<std::uint32_t>(modifiers));
}

}  // namespace

bool isTakenBySystem(const Shortcut& shortcut, const SymbolicHotKeys& symbolicHotKeys) {
  const auto entries = symbolicHotKeys.copySymbolicHotKeys();
  return entries && std::ranges::any_of(*entries, [&shortcut](const SymbolicHotKeys::Entry& entry) {
           return entry.isEnabled && entry.code == shortcut.carbonKeyCode && entry.modifiers &&
                  chordFlags(*entry.modifiers) == chordFlags(shortcut.carbonModifiers);
         });
}

}  // namespace keyboardshortcuts
