#include "KeyboardShortcuts/ShortcutText.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "Defaults/UserDefaults.h"
#include "tests/support/FakeHotKeyService.h"
#include "tests/support/FakeInputSourceService.h"
#include "tests/support/FakeSymbolicHotKeys.h"

namespace {

using namespace keyboardshortcuts;
using Log = std::vector<std::string>;

const Name show{"show", Shortcut{9, 0x300}};
const Name other{"other", std::nullopt};

class ShortcutTextTest : public testing::Test {
 protected:
  ShortcutTextTest() {
    shortcuts.declare(show);
    text.emplace(show, shortcuts, inputSources, notificationCenter);
    hold = text->value().follow([this](const auto& value) { log.push_back(value); });
  }

  testsupport::FakeHotKeyService service;
  testsupport::FakeSymbolicHotKeys symbolicHotKeys;
  defaults::UserDefaults store;
  foundation::NotificationCenter notificationCenter;
  KeyboardShortcuts shortcuts{service, symbolicHotKeys, store, notificationCenter};
  testsupport::LatinInputSource inputSources;
  std::optional<ShortcutText> text;
  Log log;
  foundation::Subscription hold;
};

TEST_F(ShortcutTextTest, FollowsTheStoredChord) {
  shortcuts.setShortcut(Shortcut{96, 0x1000}, show);
  shortcuts.setShortcut(std::nullopt, show);
  shortcuts.reset({show});

  EXPECT_EQ(log, (Log{"Shift+Super+V", "Ctrl+F5", "", "Shift+Super+V"}));
}

TEST_F(ShortcutTextTest, HeedsNoOtherName) {
  shortcuts.setShortcut(Shortcut{96, 0x1000}, other);

  EXPECT_EQ(log, (Log{"Shift+Super+V"}));
}

TEST_F(ShortcutTextTest, ShowsAnotherNameFromWhenItIsSet) {
  shortcuts.setShortcut(Shortcut{96, 0x1000}, other);

  text->setName(other);
  shortcuts.setShortcut(Shortcut{97, 0x1000}, other);

  EXPECT_EQ(log, (Log{"Shift+Super+V", "Ctrl+F5", "Ctrl+F6"}));
}

TEST_F(ShortcutTextTest, ShowsTheKeyAsTheNewLayoutHasIt) {
  inputSources.setTexts(sauce::InputSource("us"), {{9, "k"}});

  notificationCenter.post("SauceSelectedKeyboardKeyCodesChanged");

  EXPECT_EQ(log, (Log{"Shift+Super+V", "Shift+Super+K"}));
}

}  // namespace
