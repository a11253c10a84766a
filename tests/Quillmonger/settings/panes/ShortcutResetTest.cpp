#include "Quillmonger/settings/panes/ShortcutReset.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "Defaults/UserDefaults.h"
#include "Quillmonger/input/ShortcutNames.h"
#include "tests/support/FakeAlertSheet.h"
#include "tests/support/FakeHotKeyService.h"
#include "tests/support/FakeSymbolicHotKeys.h"

namespace {

using Role = foundation::AlertSheet::Button::Role;
using keyboardshortcuts::Name;
using keyboardshortcuts::Shortcut;
namespace shortcutname = quillmonger::shortcutname;

constexpr Shortcut controlF5{96, 0x1000};

class ShortcutReset : public testing::Test {
 protected:
  ShortcutReset() {
    for (const Name& name : m_names)
      m_shortcuts.setShortcut(controlF5, name);
    m_shortcuts.setShortcut(controlF5, shortcutname::activate());
  }
  std::vector<std::optional<Shortcut>> chords() {
    std::vector<std::optional<Shortcut>> found;
    for (const Name& name : m_names)
      found.push_back(m_shortcuts.getShortcut(name));
    return found;
  }
  std::vector<std::optional<Shortcut>> defaultChords() {
    std::vector<std::optional<Shortcut>> found;
    for (const Name& name : m_names)
      found.push_back(name.defaultShortcut);
    return found;
  }

  const std::vector<Name> m_names{shortcutname::quickPaste().begin(), shortcutname::quickPaste().end()};
  const std::vector<std::optional<Shortcut>> m_chosen{3, controlF5};
  testsupport::FakeHotKeyService m_service;
  testsupport::FakeSymbolicHotKeys m_symbolicHotKeys;
  defaults::UserDefaults m_store;
  foundation::NotificationCenter m_notificationCenter;
  keyboardshortcuts::KeyboardShortcuts m_shortcuts{m_service, m_symbolicHotKeys, m_store, m_notificationCenter};
  testsupport::FakeAlertSheet m_alert;
  std::unique_ptr<quillmonger::ShortcutReset> m_reset = std::make_unique<quillmonger::ShortcutReset>(
      m_alert, [](auto key) { return std::string(key); }, m_shortcuts, m_names);
};

TEST_F(ShortcutReset, AsksFirst) {
  m_reset->ask();

  EXPECT_EQ(m_alert.shown(), (std::vector<foundation::AlertSheet::Content>{
                                 {"restore_defaults_alert_title",
                                  "restore_defaults_alert_msg",
                                  {{"restore_string", Role::standard}, {"cancel_string", Role::cancel}}}}));
  EXPECT_EQ(chords(), m_chosen);
}

TEST_F(ShortcutReset, PutsTheQuickPastesBackOnConfirmation) {
  m_reset->ask();

  m_alert.answer(0);

  EXPECT_EQ(chords(), defaultChords());
}

TEST_F(ShortcutReset, LeavesTheChordThatShowsTheHistoryAsTheUserSetIt) {
  m_reset->ask();

  m_alert.answer(0);

  EXPECT_EQ(m_shortcuts.getShortcut(shortcutname::activate()), controlF5);
}

TEST_F(ShortcutReset, ChangesNothingWhenItIsCancelled) {
  m_reset->ask();

  m_alert.cancel();

  EXPECT_EQ(chords(), m_chosen);
}

TEST_F(ShortcutReset, ChangesNothingOnceItHasGone) {
  m_reset->ask();
  m_reset.reset();

  m_alert.answer(0);

  EXPECT_EQ(chords(), m_chosen);
}

}  // namespace
