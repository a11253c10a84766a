#include "Quillmonger/history/ClipboardViewModel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/ClipboardViewModelFixture.h"

namespace {

using namespace std::chrono_literals;
using namespace quillmonger;
using testsupport::makeRecord;

class ClipboardViewModelTest : public testsupport::ClipboardViewModelFixture {};

TEST_F(ClipboardViewModelTest, ShowsTheStoredHistoryNewestFirstWithTheTopRowSelected) {
  startWith({"a", "b", "c"});

  EXPECT_EQ(rows(), (Texts{"c", "b", "a"}));
  EXPECT_EQ(selected(), "c");
}

TEST_F(ClipboardViewModelTest, SaysHowManyItemsItLoaded) {
  context.insert(makeRecord("a"));
  testing::internal::CaptureStdout();

  makeViewModel();

  EXPECT_NE(testing::internal::GetCapturedStdout().find("Total clipboard items in history = 1\n"), std::string::npos);
}

TEST_F(ClipboardViewModelTest, StaysEmptyWhenTheStoreCantBeReadAndSaysWhy) {
  context.insert(makeRecord("a"));
  context.failFetches(foundation::Error{"disk on fire"});
  testing::internal::CaptureStdout();

  makeViewModel();

  const auto output = testing::internal::GetCapturedStdout();
  EXPECT_NE(output.find("ClipboardViewModel: could not fetch clipboard items from store: disk on fire\n"),
            std::string::npos);
  EXPECT_EQ(output.find("Total clipboard items"), std::string::npos);
  EXPECT_EQ(rows(), Texts{});
}

TEST_F(ClipboardViewModelTest, StoresAndShowsANewItemOnTopAndSelectsIt) {
  startWith({"a"});

  add("b");
  settle();

  EXPECT_EQ(rows(), (Texts{"b", "a"}));
  EXPECT_EQ(selected(), "b");
  EXPECT_EQ(stored(), (Texts{"a", "b"}));
}

TEST_F(ClipboardViewModelTest, TakesANewItemInALaterTurn) {
  startWith({});

  add("a");
  EXPECT_EQ(items(), Texts{});
  runLoop.runPosted();

  EXPECT_EQ(items(), Texts{"a"});
}

TEST_F(ClipboardViewModelTest, PrintsNothingOfACopy) {
  startWith({});
  testing::internal::CaptureStdout();

  const auto record = add("secret");
  clipboard.duplicateItemPublisher().send(record);
  type("secret");

  const auto output = testing::internal::GetCapturedStdout();
  EXPECT_NE(output.find("ClipboardNewItemReceiver"), std::string::npos);
  EXPECT_NE(output.find("ClipboardDuplicateItemReceiver"), std::string::npos);
  EXPECT_NE(output.find("DebouncedSearchTerm"), std::string::npos);
  EXPECT_EQ(output.find("secret"), std::string::npos);
}

TEST_F(ClipboardViewModelTest, PutsLoadedItemsOldestFirstBehindNewOnes) {
  startWith({"a", "b"});

  add("c");
  add("d");
  settle();

  EXPECT_EQ(items(), (Texts{"d", "c", "a", "b"}));
}

TEST_F(ClipboardViewModelTest, LeavesOneSelectedRowOnTopForContentThatIsCopiedAgain) {
  startWith({"a", "b"});
  const auto older = context.records()[0];

  clipboard.duplicateItemPublisher().send(older);
  const auto again = add("a");
  settle();

  EXPECT_EQ(rows(), (Texts{"a", "b"}));
  EXPECT_EQ(viewModel->selectedItem().value()->item(), again);
  EXPECT_GT(again->creationDate(), older->creationDate());
  EXPECT_EQ(stored(), (Texts{"b", "a"}));
}

TEST_F(ClipboardViewModelTest, TakesADuplicatesRowAwayWithoutASearchOrANewSelection) {
  startWith({"a", "b"});
  const auto older = context.records()[1];

  clipboard.duplicateItemPublisher().send(older);
  runLoop.runPosted();

  EXPECT_EQ(rows(), Texts{"a"});
  EXPECT_EQ(selected(), "b") << "until the search of the new record";
}

TEST_F(ClipboardViewModelTest, ShowsWhatTheTermMatchesWithTheTopRowSelected) {
  startWith({"apple", "pear", "apricot"});

  type("ap");

  EXPECT_EQ(rows(), (Texts{"apricot", "apple"}));
  EXPECT_EQ(selected(), "apricot");
}

TEST_F(ClipboardViewModelTest, ShowsTheResultOfTheLastSearchAlone) {
  startWith({"apple", "pear"});
  viewModel->setSearchTerm("apple");
  viewModel->search();
  viewModel->setSearchTerm("pear");
  viewModel->search();

  queue.runLast();
  queue.run();
  runLoop.runPosted();

  EXPECT_EQ(rows(), Texts{"pear"});
}

TEST_F(ClipboardViewModelTest, NeverShowsTheResultOfATermThatWasTypedOver) {
  startWith({"apple", "pear"});
  std::vector<std::size_t> rowCounts;
  const auto hold =
      viewModel->filteredItems().subscribe([&](const auto& found) { rowCounts.push_back(found->size()); });

  searchViewModel.searchTerm().set("none such");
  runLoop.advance(150ms);
  queue.run();
  viewModel->setSearchTerm("pear");
  viewModel->search();
  settle();

  EXPECT_EQ(rowCounts, std::vector<std::size_t>{1});
  EXPECT_EQ(rows(), Texts{"pear"});
}

TEST_F(ClipboardViewModelTest, SearchesAgainForATermThatIsToldAgain) {
  startWith({"a"});
  type("a");
  const auto searchCount = queue.performedCounts().size();

  searchViewModel.debouncedSearchTerm().set("a");
  settle();

  EXPECT_EQ(queue.performedCounts().size(), searchCount + 1);
}

TEST_F(ClipboardViewModelTest, DropsASearchThatOutlivesIt) {
  startWith({"a"});
  viewModel->search();
  add("b");

  viewModel.reset();

  EXPECT_NO_FATAL_FAILURE(settle());
  EXPECT_EQ(stored(), Texts{"a"});
}

TEST_F(ClipboardViewModelTest, DeletesEverythingFromStoreAndList) {
  startWith({"a", "b"});

  viewModel->deleteAllItems();
  settle();

  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(items(), Texts{});
  EXPECT_EQ(stored(), Texts{});
  EXPECT_EQ(selected(), "(none)");
}

TEST_F(ClipboardViewModelTest, DeletesNothingWhenTheStoreCantBeReadAndSaysWhy) {
  startWith({"a"});
  context.failFetches(foundation::Error{"disk on fire"});
  testing::internal::CaptureStdout();

  viewModel->deleteAllItems();
  settle();

  EXPECT_EQ(testing::internal::GetCapturedStdout(), "could not delete all items: disk on fire\n");
  EXPECT_EQ(rows(), Texts{"a"});
}

TEST_F(ClipboardViewModelTest, SearchesForTheEmptyTermBeforeItLoadsTheHistory) {
  context.insert(makeRecord("a"));
  testing::internal::CaptureStdout();

  makeViewModel();

  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "DebouncedSearchTerm: received a term\nTotal clipboard items in history = 1\n");
}

TEST_F(ClipboardViewModelTest, DeletesADuplicateThatItDoesNotHoldFromTheStoreAlone) {
  startWith({"a", "b"});
  const auto unknown = makeRecord("c");
  context.insert(unknown);

  clipboard.duplicateItemPublisher().send(unknown);
  settle();

  EXPECT_EQ(stored(), (Texts{"a", "b"}));
  EXPECT_EQ(items(), (Texts{"a", "b"}));
  EXPECT_EQ(rows(), (Texts{"b", "a"}));
}

TEST_F(ClipboardViewModelTest, TakesADuplicateAwayThatTheTermHides) {
  startWith({"apple", "pear"});
  type("pear");

  clipboard.duplicateItemPublisher().send(context.records()[0]);
  settle();

  EXPECT_EQ(items(), Texts{"pear"});
  EXPECT_EQ(rows(), Texts{"pear"});
}

TEST_F(ClipboardViewModelTest, KeepsASelectionFurtherDownWhenADuplicateGoesUntilTheNewCopyIsFound) {
  startWith({"a", "b", "c"});
  select(2);

  clipboard.duplicateItemPublisher().send(context.records()[1]);
  add("b");
  runLoop.runPosted();
  EXPECT_EQ(rows(), (Texts{"c", "a"}));
  EXPECT_EQ(selected(), "a");
  settle();

  EXPECT_EQ(rows(), (Texts{"b", "c", "a"}));
  EXPECT_EQ(selected(), "b");
}

TEST_F(ClipboardViewModelTest, SelectsTheTopRowOfTheOldListAtOnceWhileASearchStillRuns) {
  startWith({"apple", "pear"});
  select(1);

  viewModel->setSearchTerm("apple");
  viewModel->search();
  viewModel->selectFirstItem();
  EXPECT_EQ(selected(), "pear");
  settle();

  EXPECT_EQ(selected(), "apple");
}

TEST_F(ClipboardViewModelTest, SelectsNothingAsTheTopRowOfNoRows) {
  startWith({"apple"});
  const auto apple = viewModel->selectedItem().value();
  type("none such");
  viewModel->select(apple);

  viewModel->selectFirstItem();

  EXPECT_EQ(selected(), "(none)");
}

TEST_F(ClipboardViewModelTest, FindsAnItemByItsTextOnceItsApplicationIsGone) {
  const auto editor = *foundation::Url::parse("file:///apps/editor.desktop");
  naming.setDisplayName(editor, "Editor");
  context.insert(makeRecord("note", nextAge(), pasteboardtype::NSPasteboardTypeString, {.url = editor}));
  startWith({"list"});
  type("Editor");
  EXPECT_EQ(rows(), Texts{"note"});

  naming.forget(editor);

  type("note");
  EXPECT_EQ(rows(), Texts{"note"});
  EXPECT_EQ(viewModel->selectedItem().value()->appName(), std::nullopt);
  type("Editor");
  EXPECT_EQ(rows(), Texts{});
}

TEST_F(ClipboardViewModelTest, DeletesAnItemThatIsNotSelectedAndLeavesTheSelection) {
  startWith({"a", "b", "c"});

  viewModel->deleteItem(viewModel->items().all()[1]);

  EXPECT_EQ(rows(), (Texts{"c", "a"}));
  EXPECT_EQ(items(), (Texts{"a", "c"}));
  EXPECT_EQ(stored(), (Texts{"a", "c"}));
  EXPECT_EQ(selected(), "c");
}

TEST_F(ClipboardViewModelTest, SelectsTheRowBelowWhenTheSelectedItemIsDeletedByName) {
  startWith({"a", "b"});

  viewModel->deleteItem(viewModel->selectedItem().value());

  EXPECT_EQ(rows(), Texts{"a"});
  EXPECT_EQ(selected(), "a");
}

TEST_F(ClipboardViewModelTest, DeletesAnItemThatTheSearchDoesNotShow) {
  startWith({"apple", "pear"});
  type("pear");

  viewModel->deleteItem(viewModel->items().all()[0]);

  EXPECT_EQ(rows(), Texts{"pear"});
  EXPECT_EQ(items(), Texts{"pear"});
}

TEST_F(ClipboardViewModelTest, DeletesAnItemOnce) {
  startWith({"a", "b"});
  const auto item = viewModel->selectedItem().value();
  viewModel->deleteItem(item);

  viewModel->deleteItem(item);

  EXPECT_EQ(items(), Texts{"a"});
}

}  // namespace
