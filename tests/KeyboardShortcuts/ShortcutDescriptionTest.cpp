#include "KeyboardShortcuts/ShortcutDescription.h"

#include <gtest/gtest.h>

#include "tests/support/FakeInputSourceService.h"

namespace {

using namespace keyboardshortcuts;

class ShortcutDescription : public testing::Test {
 protected:
  ShortcutDescription() {
    service.setTexts(ascii, {{9, "v"}, {43, ","}, {12, "a"}});
    service.setASCIICapable(ascii);
    service.setTexts(russian, {{9, "\u043C"}});
    service.setSelected(russian);
  }

  const sauce::InputSource ascii{"us"};
  const sauce::InputSource russian{"ru"};
  testsupport::FakeInputSourceService service;
};

TEST_F(ShortcutDescription, HasTheModifiersInOneOrderAndThenTheKeyOfTheLatinLayout) {
  EXPECT_EQ(description({9, 0x1B00}, service), "Ctrl+Alt+Shift+Super+V");
  EXPECT_EQ(description({9, 0x300}, service), "Shift+Super+V");
  EXPECT_EQ(description({43, 0x1000}, service), "Ctrl+,");
}

TEST_F(ShortcutDescription, HasTheSignsOfTheOtherPlatform) {
  EXPECT_EQ(description({9, 0x1B00}, service, ShortcutStyle::signs), "\u2303\u2325\u21E7\u2318V");
  EXPECT_EQ(description({123, 0x100}, service, ShortcutStyle::signs), "\u2318\u2190");
}

TEST_F(ShortcutDescription, NamesTheKeysThatTypeNothing) {
  EXPECT_EQ(description({36, 0x100}, service), "Super+Return");
  EXPECT_EQ(description({96, 0}, service), "F5");
  EXPECT_EQ(description({123, 0x200}, service), "Shift+Left");
  EXPECT_EQ(description({83, 0x100}, service), "Super+Keypad 1");
}

TEST_F(ShortcutDescription, NamesTheFunctionKeysFlag) { EXPECT_EQ(description({9, 0x800000}, service), "Fn+V"); }

TEST_F(ShortcutDescription, LeavesAKeyWithoutNameAndTranslationEmpty) {
  EXPECT_EQ(description({10, 0}, service), "");
  EXPECT_EQ(description({10, 0x100}, service), "Super");
  EXPECT_EQ(description({-1, 0x100}, service), "Super");
  EXPECT_EQ(description({70000, 0x100}, service), "Super");
}

}  // namespace
