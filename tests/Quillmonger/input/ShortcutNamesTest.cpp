#include "Quillmonger/input/ShortcutNames.h"

#include <gtest/gtest.h>

namespace {

using keyboardshortcuts::Shortcut;
namespace shortcutname = quillmonger::shortcutname;

constexpr std::int64_t shiftCommand = 0x300;

TEST(ShortcutNames, ShowTheHistoryWithShiftCommandV) {
  EXPECT_EQ(shortcutname::activate().rawValue, "activate");
  EXPECT_EQ(shortcutname::activate().defaultShortcut, (Shortcut{9, shiftCommand}));
}

TEST(ShortcutNames, PasteTheFirstThreeItemsWithShiftCommandXER) {
  const auto& names = shortcutname::quickPaste();

  EXPECT_EQ(names[0].rawValue, "quickPaste1");
  EXPECT_EQ(names[0].defaultShortcut, (Shortcut{7, shiftCommand}));
  EXPECT_EQ(names[1].rawValue, "quickPaste2");
  EXPECT_EQ(names[1].defaultShortcut, (Shortcut{14, shiftCommand}));
  EXPECT_EQ(names[2].rawValue, "quickPaste3");
  EXPECT_EQ(names[2].defaultShortcut, (Shortcut{15, shiftCommand}));
}

}  // namespace
