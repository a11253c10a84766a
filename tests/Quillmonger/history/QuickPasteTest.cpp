#include <gtest/gtest.h>

#include <vector>

#include "Quillmonger/history/ClipboardViewModel.h"
#include "tests/support/ClipboardViewModelFixture.h"

namespace {

using namespace quillmonger;
using RemoveFormatting = ClipboardManaging::RemoveFormatting;
using Chord = testsupport::FakeHotKeyService::Chord;

const Chord first{7, 0x300};
const Chord second{14, 0x300};
const Chord third{15, 0x300};

class QuickPasteTest : public testsupport::ClipboardViewModelFixture {};

TEST_F(QuickPasteTest, PastesTheFirstRowsByGlobalChordsOnlyWhileTheSettingIsOn) {
  startWith({"a", "b", "c"});
  EXPECT_FALSE(hotKeys.isRegistered(second));

  settings.defaults.set(keys::quickPaste, true);
  viewModel->isOptionPressed().set(true);
  hotKeys.press(second);

  ASSERT_EQ(clipboard.writes().size(), 1U);
  EXPECT_EQ(clipboard.writes()[0].item, context.records()[1]->id());
  EXPECT_EQ(clipboard.writes()[0].removeFormatting, RemoveFormatting::no) << "never looks at the Option key";
  settings.defaults.set(keys::quickPaste, false);
  EXPECT_FALSE(hotKeys.isRegistered(second));
}

TEST_F(QuickPasteTest, PastesTheFirstThreeRowsByTheThreeChordsInTheirOrder) {
  settings.defaults.set(keys::quickPaste, true);
  startWith({"a", "b", "c", "d"});

  for (const auto& chord : {first, second, third})
    hotKeys.press(chord);

  ASSERT_EQ(clipboard.writes().size(), 3U);
  EXPECT_EQ(clipboard.writes()[0].item, context.records()[3]->id());
  EXPECT_EQ(clipboard.writes()[1].item, context.records()[2]->id());
  EXPECT_EQ(clipboard.writes()[2].item, context.records()[1]->id());
}

TEST_F(QuickPasteTest, EnablesTheChordsInTheOrderOfTheRows) {
  makeViewModel();
  ASSERT_EQ(hotKeys.count(), 0U);

  settings.defaults.set(keys::quickPaste, true);

  std::vector<Chord> enabled;
  for (const auto& [identifier, chord] : hotKeys.hotKeys())
    enabled.push_back(chord);
  EXPECT_EQ(enabled, (std::vector<Chord>{first, second, third}));
}

TEST_F(QuickPasteTest, PastesAmongTheRowsShownAndNothingBeyondThem) {
  settings.defaults.set(keys::quickPaste, true);
  startWith({"apple", "pear"});
  type("apple");

  hotKeys.press(first);
  hotKeys.press(second);

  ASSERT_EQ(clipboard.writes().size(), 1U);
  EXPECT_EQ(clipboard.writes()[0].item, context.records()[0]->id());
}

TEST_F(QuickPasteTest, WorksWhenTheHistoryCantBeRead) {
  settings.defaults.set(keys::quickPaste, true);
  context.failFetches(foundation::Error{"disk on fire"});
  makeViewModel();
  add("a");
  settle();

  hotKeys.press(first);

  EXPECT_EQ(clipboard.writes().size(), 1U);
}

TEST_F(QuickPasteTest, DisablesTheChordsAtItsEnd) {
  settings.defaults.set(keys::quickPaste, true);
  makeViewModel();
  ASSERT_EQ(hotKeys.count(), 3U);

  viewModel.reset();
  settle();

  EXPECT_EQ(hotKeys.count(), 0U);
}

}  // namespace
