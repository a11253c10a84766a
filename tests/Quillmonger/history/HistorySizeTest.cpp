#include <gtest/gtest.h>

#include <string>

#include "Quillmonger/history/ClipboardViewModel.h"
#include "tests/support/ClipboardViewModelFixture.h"

namespace {

using namespace std::chrono_literals;
namespace keys = quillmonger::keys;

class HistorySizeTest : public testsupport::ClipboardViewModelFixture {};

TEST_F(HistorySizeTest, CutsTheEndOfItsItemsWithinHalfASecond) {
  settings.defaults.set(keys::historySize, 10);
  startWith({});
  for (int count = 0; count < 11; ++count)
    add(std::to_string(count));
  runLoop.runPosted();
  EXPECT_EQ(viewModel->items().size(), 11U);

  runLoop.advance(500ms);
  settle();

  EXPECT_EQ(viewModel->items().size(), 10U);
  EXPECT_EQ(items().back(), "1");
  EXPECT_EQ(stored().front(), "1");
  EXPECT_EQ(rows().size(), 10U);
}

TEST_F(HistorySizeTest, KeepsAllLoadedItemsAtExactlyTheLimitAndCutsTheNewestOfThemForTheNextCopy) {
  settings.defaults.set(keys::historySize, 10);
  startWith({"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"});
  runLoop.advance(1s);
  settle();
  EXPECT_EQ(rows().size(), 10U);

  add("copy");
  runLoop.advance(500ms);
  settle();

  EXPECT_EQ(rows(), (Texts{"copy", "8", "7", "6", "5", "4", "3", "2", "1", "0"}));
  EXPECT_EQ(stored(), (Texts{"0", "1", "2", "3", "4", "5", "6", "7", "8", "copy"}));
}

TEST_F(HistorySizeTest, ChangesNothingWhenTheLimitIsLoweredToTheNumberPresent) {
  startWith({"a", "b", "c"});
  type("");  // once the search field has told its term, nothing but the limit can start a search
  select(2);
  const auto searchCount = queue.performedCounts().size();

  settings.defaults.set(keys::historySize, 3);
  runLoop.advance(1s);
  settle();

  EXPECT_EQ(stored(), (Texts{"a", "b", "c"}));
  EXPECT_EQ(selected(), "a");
  EXPECT_EQ(queue.performedCounts().size(), searchCount);
}

TEST_F(HistorySizeTest, CutsAtTheNextTickWhenTheLimitIsLoweredBelowTheNumberPresent) {
  startWith({"a", "b", "c"});

  settings.defaults.set(keys::historySize, 2);
  runLoop.advance(499ms);
  EXPECT_EQ(items(), (Texts{"a", "b", "c"}));
  runLoop.advance(1ms);
  EXPECT_EQ(items(), (Texts{"a", "b"}));
  EXPECT_EQ(rows(), (Texts{"c", "b", "a"})) << "until the search is finished";
  settle();

  EXPECT_EQ(rows(), (Texts{"b", "a"}));
}

TEST_F(HistorySizeTest, MovesASelectionFarDownToTheTopRowAtTheNextTickOnceTheLimitIsLoweredFrom1000To10) {
  Texts texts;
  for (int count = 0; count < 1000; ++count)
    texts.push_back(std::to_string(count));
  startWith(texts);
  type("");  // once the search field has told its term, nothing but the tick can start a search
  select(995);
  ASSERT_EQ(selected(), "4");

  settings.defaults.set(keys::historySize, 10);
  runLoop.advance(349ms);
  settle();
  EXPECT_EQ(selected(), "4");
  EXPECT_EQ(rows().size(), 1000U);
  runLoop.advance(1ms);
  settle();

  EXPECT_EQ(rows(), (Texts{"9", "8", "7", "6", "5", "4", "3", "2", "1", "0"}));
  EXPECT_EQ(selected(), "9");
}

TEST_F(HistorySizeTest, DeletesWhatItCutsFromTheStoreInTheOrderOfItsItems) {
  startWith({"a", "b", "c"});
  add("new");
  settle();

  settings.defaults.set(keys::historySize, 2);
  runLoop.advance(500ms);

  Texts removed;
  for (const auto& record : context.removed())
    removed.push_back(*record->data("public.utf8-plain-text")->bytes());
  EXPECT_EQ(removed, (Texts{"b", "c"}));
  EXPECT_EQ(items(), (Texts{"new", "a"}));
}

TEST_F(HistorySizeTest, SurvivesALimitBelowZero) {
  startWith({"a"});

  settings.defaults.set(keys::historySize, -5);
  runLoop.advance(500ms);
  settle();

  EXPECT_EQ(rows(), Texts{});
}

}  // namespace
