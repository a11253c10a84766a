#include "KeyboardShortcuts/MenuItem.h"

#include <gtest/gtest.h>

#include "tests/support/FakeInputSourceService.h"

namespace {

using namespace keyboardshortcuts;

constexpr std::uint32_t shiftFlag = 0x20000;
constexpr std::uint32_t commandFlag = 0x100000;

class MainMenu : public testing::Test {
 protected:
  MainMenu() {
    service.setTexts(ascii, {{9, "v"}, {43, ","}});
    service.setASCIICapable(ascii);
  }
  [[nodiscard]] std::string taken(const Shortcut& shortcut, const std::vector<MenuItem>& menu) const {
    const MenuItem* item = takenByMainMenu(shortcut, menu, service);
    return item == nullptr ? "" : item->title;
  }

  const sauce::InputSource ascii{"us"};
  testsupport::FakeInputSourceService service;
};

TEST_F(MainMenu, TakesAChordByTheFirstItemThatReactsToItDepthFirst) {
  const MenuItem settings{"Settings", ",", commandFlag, false, {}};
  const MenuItem later{"Later", ",", commandFlag, false, {}};
  const MenuItem edit{"Edit", "", 0, true, {{"More", "", 0, true, {settings}}}};

  EXPECT_EQ(taken({43, 0x100}, {edit, later}), "Settings");
  EXPECT_EQ(taken({43, 0x100}, {later, edit}), "Later");
}

TEST_F(MainMenu, TakesNoChordOfOtherModifiersOrAnotherKey) {
  const MenuItem settings{"Settings", ",", commandFlag, false, {}};

  EXPECT_EQ(taken({43, 0x300}, {settings}), "");
  EXPECT_EQ(taken({9, 0x100}, {settings}), "");
}

TEST_F(MainMenu, ReadsACapitalLetterAsHoldingShiftToo) {
  const MenuItem paste{"Paste", "V", commandFlag, false, {}};

  EXPECT_EQ(taken({9, 0x300}, {paste}), "Paste");
  EXPECT_EQ(taken({9, 0x100}, {paste}), "");
}

TEST_F(MainMenu, TakesNoChordOfAKeyThatTypesNothing) {
  const MenuItem plain{"Plain", "", 0, true, {}};

  EXPECT_EQ(taken({10, 0}, {plain}), "");
}

TEST_F(MainMenu, ShowsAChordOnAnItemAndTakesItOffAgain) {
  MenuItem item{"Paste", "", 0, true, {}};

  item.setShortcut(Shortcut{9, 0x300}, service);
  EXPECT_EQ(item.keyEquivalent, "v");
  EXPECT_EQ(item.keyEquivalentModifierMask, shiftFlag | commandFlag);
  EXPECT_FALSE(item.allowsAutomaticKeyEquivalentLocalization);
  EXPECT_EQ(taken({9, 0x300}, {item}), "Paste");
  item.setShortcut(std::nullopt, service);

  EXPECT_EQ(item.keyEquivalent, "");
  EXPECT_EQ(item.keyEquivalentModifierMask, 0U);
  EXPECT_TRUE(item.allowsAutomaticKeyEquivalentLocalization);
}

}  // namespace
