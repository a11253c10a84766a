#include "Quillmonger/settings/view/KeyBindingsSettings.h"

#include "Quillmonger/input/ShortcutNames.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

using Names = std::vector<keyboardshortcuts::Name>;

Names quickPasteNames() { return {shortcutname::quickPaste().begin(), shortcutname::quickPaste().end()}; }

Names allNames() {
  Names names = quickPasteNames();
  names.push_back(shortcutname::activate());
  return names;
}

}  // namespace

KeyBindingsSettings::KeyBindingsSettings(defaults::Defaults& defaults,
                                         const keyboardshortcuts::RecorderCocoa::Surroundings& surroundings)
    : m_recorders(surroundings, allNames()),
      m_quickPaste("settings_enable_quick_paste_title", defaults, keys::quickPaste),
      m_reset(surroundings.alert, surroundings.texts, surroundings.shortcuts, quickPasteNames()) {}

}  // namespace quillmonger
