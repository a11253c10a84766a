#include <gtest/gtest.h>

#include <cstdint>

#include "Quillmonger/history/ClipboardViewModel.h"
#include "tests/support/ClipboardViewModelFixture.h"

namespace {

using namespace quillmonger;
using RemoveFormatting = ClipboardManaging::RemoveFormatting;

constexpr std::uint16_t returnKey = 36;
constexpr std::uint16_t upKey = 126;
constexpr std::uint16_t downKey = 125;
constexpr std::uint16_t deleteKey = 51;
constexpr std::uint16_t leftOptionKey = 58;
constexpr std::uint16_t rightOptionKey = 61;

class ClipboardViewModelKeysTest : public testsupport::ClipboardViewModelFixture {};

TEST_F(ClipboardViewModelKeysTest, DoesNothingVisibleForKeysInAnEmptyHistory) {
  startWith({});
  int deletedCount = 0;
  const auto hold = notificationCenter.observe("ItemDeleted", [&](const auto&) { ++deletedCount; });

  EXPECT_TRUE(press(upKey));
  EXPECT_TRUE(press(downKey));
  EXPECT_TRUE(press(returnKey));
  EXPECT_TRUE(press(deleteKey, commandFlag));

  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(selected(), "(none)");
  EXPECT_TRUE(clipboard.writes().empty());
  EXPECT_EQ(deletedCount, 1);
}

TEST_F(ClipboardViewModelKeysTest, KeepsTheOnlyRowSelected) {
  startWith({"a"});

  press(downKey);
  EXPECT_EQ(selected(), "a");
  press(upKey);

  EXPECT_EQ(selected(), "a");
}

TEST_F(ClipboardViewModelKeysTest, MovesTheSelectionAroundBothEnds) {
  startWith({"a", "b", "c"});

  press(upKey);
  EXPECT_EQ(selected(), "a");
  press(downKey);
  EXPECT_EQ(selected(), "c");
  press(downKey);
  EXPECT_EQ(selected(), "b");
  press(upKey);

  EXPECT_EQ(selected(), "c");
}

TEST_F(ClipboardViewModelKeysTest, MovesFromASelectionThatIsNotAmongTheRowsToAnEnd) {
  startWith({"a", "b"});
  viewModel->selectedItem().set(nullptr);
  press(downKey);
  EXPECT_EQ(selected(), "b");

  viewModel->selectedItem().set(nullptr);
  press(upKey);

  EXPECT_EQ(selected(), "a");
}

TEST_F(ClipboardViewModelKeysTest, SelectsTheRowBelowADeletedOne) {
  startWith({"a", "b", "c"});
  select(1);

  press(deleteKey, commandFlag);

  EXPECT_EQ(rows(), (Texts{"c", "a"}));
  EXPECT_EQ(selected(), "a");
  EXPECT_EQ(stored(), (Texts{"a", "c"}));
  EXPECT_EQ(items(), (Texts{"a", "c"}));
}

TEST_F(ClipboardViewModelKeysTest, SelectsTheRowAboveADeletedLastOne) {
  startWith({"a", "b"});
  select(1);

  press(deleteKey, commandFlag);

  EXPECT_EQ(selected(), "b");
}

TEST_F(ClipboardViewModelKeysTest, SelectsNothingAfterTheOnlyRowIsDeleted) {
  startWith({"a"});

  press(deleteKey, commandFlag);

  EXPECT_EQ(selected(), "(none)");
  EXPECT_EQ(rows(), Texts{});
}

TEST_F(ClipboardViewModelKeysTest, SearchesNothingForADelete) {
  startWith({"a", "b"});
  const auto searchCount = queue.performedCounts().size();

  press(deleteKey, commandFlag);

  EXPECT_EQ(queue.performedCounts().size(), searchCount);
}

TEST_F(ClipboardViewModelKeysTest, TellsOfADeletionOnceItIsDoneAndNamesNoObject) {
  startWith({"a", "b"});
  Texts storedWhenTold;
  const void* object = this;
  const auto hold = notificationCenter.observe("ItemDeleted", [&](const auto& notification) {
    storedWhenTold = stored();
    object = notification.object;
  });

  press(deleteKey, commandFlag);

  EXPECT_EQ(storedWhenTold, Texts{"a"});
  EXPECT_EQ(object, nullptr);
}

TEST_F(ClipboardViewModelKeysTest, DeletesASelectedItemThatIsNoRowAndLeavesItSelected) {
  startWith({"apple", "pear"});
  const auto pear = viewModel->selectedItem().value();
  type("apple");
  viewModel->select(pear);

  press(deleteKey, commandFlag);

  EXPECT_EQ(stored(), Texts{"apple"});
  EXPECT_EQ(items(), Texts{"apple"});
  EXPECT_EQ(rows(), Texts{"apple"});
  EXPECT_EQ(selected(), "pear");
}

TEST_F(ClipboardViewModelKeysTest, PastesTheSelectedRowForReturn) {
  startWith({"a", "b"});
  select(1);

  press(returnKey);

  ASSERT_EQ(clipboard.writes().size(), 1U);
  EXPECT_EQ(clipboard.writes()[0].item, viewModel->selectedItem().value()->item()->id());
  EXPECT_EQ(selected(), "a");
}

TEST_F(ClipboardViewModelKeysTest, PastesTheRowOfADigitAmongTheRowsShown) {
  startWith({"apple", "pear", "apricot"});
  type("ap");

  press(19, commandFlag);

  ASSERT_EQ(clipboard.writes().size(), 1U);
  EXPECT_EQ(clipboard.writes()[0].item, context.records()[0]->id());
}

TEST_F(ClipboardViewModelKeysTest, PastesNothingForADigitBeyondTheRowsOrZero) {
  startWith({"a", "b", "c"});

  EXPECT_TRUE(press(23, commandFlag)) << "five";
  EXPECT_FALSE(press(29, commandFlag)) << "zero";

  EXPECT_TRUE(clipboard.writes().empty());
}

TEST_F(ClipboardViewModelKeysTest, ReversesTheFormattingWhileTheLeftOptionKeyIsDown) {
  startWith({"a"});
  eventMonitor.send({KeyEvent::Type::flagsChanged, leftOptionKey, optionFlag});
  settle();
  EXPECT_TRUE(viewModel->isOptionPressed().value());
  press(returnKey, optionFlag);

  eventMonitor.send({KeyEvent::Type::flagsChanged, leftOptionKey, 0});
  settle();
  EXPECT_FALSE(viewModel->isOptionPressed().value());
  press(returnKey);

  ASSERT_EQ(clipboard.writes().size(), 2U);
  EXPECT_EQ(clipboard.writes()[0].removeFormatting, RemoveFormatting::yes);
  EXPECT_EQ(clipboard.writes()[1].removeFormatting, RemoveFormatting::no);
}

TEST_F(ClipboardViewModelKeysTest, ReversesTheFormattingOfADigitWhileTheLeftOptionKeyIsDown) {
  startWith({"a", "b"});
  eventMonitor.send({KeyEvent::Type::flagsChanged, leftOptionKey, optionFlag});

  press(19, commandFlag | optionFlag);

  ASSERT_EQ(clipboard.writes().size(), 1U);
  EXPECT_EQ(clipboard.writes()[0].item, context.records()[0]->id());
  EXPECT_EQ(clipboard.writes()[0].removeFormatting, RemoveFormatting::yes);
}

TEST_F(ClipboardViewModelKeysTest, IgnoresTheRightOptionKey) {
  startWith({"a"});

  eventMonitor.send({KeyEvent::Type::flagsChanged, rightOptionKey, optionFlag});
  settle();

  EXPECT_FALSE(viewModel->isOptionPressed().value());
}

TEST_F(ClipboardViewModelKeysTest, LeavesOtherKeysToTheWindows) {
  startWith({"a"});

  EXPECT_FALSE(press(53));
  EXPECT_FALSE(press(43, commandFlag));
  EXPECT_FALSE(press(0));
}

TEST_F(ClipboardViewModelKeysTest, DoesTheWorkOfAKeyInALaterTurn) {
  startWith({"a", "b"});

  eventMonitor.press(downKey);
  EXPECT_EQ(selected(), "b");
  runLoop.runPosted();

  EXPECT_EQ(selected(), "a");
}

TEST_F(ClipboardViewModelKeysTest, SelectsNoItemThatHasLeftTheHistory) {
  startWith({"a", "b"});
  const auto gone = viewModel->filteredItems().value()->at(1).item->shared_from_this();
  select(1);
  press(deleteKey, commandFlag);

  viewModel->select(gone);

  EXPECT_EQ(selected(), "b");
}

}  // namespace
