#include "Quillmonger/input/ShortcutNames.h"

#include "Quillmonger/input/KeyEvent.h"
#include "Sauce/ModifierTransformer.h"

namespace quillmonger::shortcutname {

namespace {

keyboardshortcuts::Name shiftCommand(const char* rawValue, std::int64_t keyCode) {
  return {rawValue,
          keyboardshortcuts::Shortcut{keyCode, sauce::ModifierTransformer::serviceBits(shiftFlag | commandFlag)}};
}

}  // namespace

const keyboardshortcuts::Name& activate() {
  static const auto name = shiftCommand("activate", 9);  // V
  return name;
}

const std::array<keyboardshortcuts::Name, 3>& quickPaste() {
  static const std::array names{shiftCommand("quickPaste1", 7),    // X
                                shiftCommand("quickPaste2", 14),   // E
                                shiftCommand("quickPaste3", 15)};  // R
  return names;
}

}  // namespace quillmonger::shortcutname
