#include "Quillmonger/input/ShortcutNames.h"

#include "Quillmonger/settings/ShortcutDefaults.h"

namespace quillmonger::shortcutname {

namespace {

keyboardshortcuts::Name named(const ShortcutDefault& shortcut) {
  return {std::string(shortcut.name),
          keyboardshortcuts::Shortcut{shortcut.keyCode, keyboardshortcuts::carbonModifiers(shortcut.modifiers)}};
}

}  // namespace

const keyboardshortcuts::Name& activate() {
  static const auto name = named(shortcuts::activate);
  return name;
}

const std::array<keyboardshortcuts::Name, 3>& quickPaste() {
  static const std::array names{named(shortcuts::quickPaste1), named(shortcuts::quickPaste2),
                                named(shortcuts::quickPaste3)};
  return names;
}

}  // namespace quillmonger::shortcutname
