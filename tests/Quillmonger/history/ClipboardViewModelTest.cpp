#include "Quillmonger/history/ClipboardViewModel.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/FakeHotKeyService.h"
#include "tests/support/FakeLocalEventMonitor.h"
#include "tests/support/FakeStoreContext.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/ItemServices.h"
#include "tests/support/Records.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
using namespace quillmonger;
using testsupport::makeRecord;
using Texts = std::vector<std::string>;
using Record = ClipboardManaging::Record;
using RemoveFormatting = ClipboardManaging::RemoveFormatting;

constexpr std::uint16_t returnKey = 36;
constexpr std::uint16_t upKey = 126;
constexpr std::uint16_t downKey = 125;
constexpr std::uint16_t deleteKey = 51;
constexpr std::uint16_t leftOptionKey = 58;
constexpr std::uint16_t rightOptionKey = 61;

class ClipboardViewModelTest : public testing::Test, protected testsupport::ItemServices {
 protected:
  ClipboardViewModelTest() { settings.defaults.set(keys::historySize, 1000); }

  void makeViewModel() {
    viewModel.emplace(ClipboardViewModel::Collaborators{
        clipboard, context, searchViewModel, searchManager, naming, *oculetManager, pictures, testsupport::englishText,
        eventMonitor, shortcuts, runLoop, notificationCenter, settings.defaults});
    settle();
  }
  // The records stand in the store when the view model is made, oldest first.
  void startWith(const Texts& texts) {
    for (const auto& text : texts)
      context.insert(makeRecord(text, nextAge()));
    makeViewModel();
  }
  foundation::Seconds nextAge() { return foundation::Seconds(++age); }
  void settle() {
    runLoop.runPosted();
    queue.run();
    runLoop.runPosted();
  }
  Record add(const std::string& text) {
    auto record = makeRecord(text, nextAge());
    clipboard.newItemPublisher().send(record);
    return record;
  }
  void type(const std::string& term) {
    searchViewModel.searchTerm().set(term);
    runLoop.advance(150ms);
    settle();
  }
  bool press(std::uint16_t keyCode, std::uint32_t flags = 0) {
    const bool isSwallowed = eventMonitor.press(keyCode, flags);
    settle();
    return isSwallowed;
  }
  static std::string textOf(const ClipboardViewModel::Item& item) {
    return item ? std::string(item->text().view) : "(none)";
  }
  Texts rows() {
    Texts texts;
    for (const auto* item : viewModel->filteredItems().value()->found())
      texts.emplace_back(item->text().view);
    return texts;
  }
  Texts items() {
    Texts texts;
    for (const auto& item : viewModel->items().all())
      texts.push_back(textOf(item));
    return texts;
  }
  Texts stored() {
    Texts texts;
    for (const auto& record : context.records())
      texts.push_back(*record->data("public.utf8-plain-text")->bytes());
    return texts;
  }
  std::string selected() { return textOf(viewModel->selectedItem().value()); }
  void select(std::size_t row) {
    viewModel->select(viewModel->filteredItems().value()->at(row).item->shared_from_this());
  }

  testsupport::VirtualRunLoop runLoop;
  testsupport::InlineBackgroundQueue queue;
  testsupport::FakeStoreContext context;
  testsupport::FakeLocalEventMonitor eventMonitor;
  testsupport::FakeHotKeyService hotKeys;
  foundation::NotificationCenter notificationCenter;
  keyboardshortcuts::KeyboardShortcuts shortcuts{hotKeys, settings.suite, notificationCenter};
  SearchViewModel searchViewModel{runLoop, settings.defaults};
  SearchManager<ClipboardItemViewModel> searchManager{queue, runLoop, settings.defaults};
  std::optional<ClipboardViewModel> viewModel;
  int age = 0;
};

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

TEST_F(ClipboardViewModelTest, DoesNothingVisibleForKeysInAnEmptyHistory) {
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

TEST_F(ClipboardViewModelTest, KeepsTheOnlyRowSelected) {
  startWith({"a"});

  press(downKey);
  EXPECT_EQ(selected(), "a");
  press(upKey);

  EXPECT_EQ(selected(), "a");
}

TEST_F(ClipboardViewModelTest, MovesTheSelectionAroundBothEnds) {
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

TEST_F(ClipboardViewModelTest, MovesFromASelectionThatIsNotAmongTheRowsToAnEnd) {
  startWith({"a", "b"});
  viewModel->selectedItem().set(nullptr);
  press(downKey);
  EXPECT_EQ(selected(), "b");

  viewModel->selectedItem().set(nullptr);
  press(upKey);

  EXPECT_EQ(selected(), "a");
}

TEST_F(ClipboardViewModelTest, SelectsTheRowBelowADeletedOne) {
  startWith({"a", "b", "c"});
  select(1);

  press(deleteKey, commandFlag);

  EXPECT_EQ(rows(), (Texts{"c", "a"}));
  EXPECT_EQ(selected(), "a");
  EXPECT_EQ(stored(), (Texts{"a", "c"}));
  EXPECT_EQ(items(), (Texts{"a", "c"}));
}

TEST_F(ClipboardViewModelTest, SelectsTheRowAboveADeletedLastOne) {
  startWith({"a", "b"});
  select(1);

  press(deleteKey, commandFlag);

  EXPECT_EQ(selected(), "b");
}

TEST_F(ClipboardViewModelTest, SelectsNothingAfterTheOnlyRowIsDeleted) {
  startWith({"a"});

  press(deleteKey, commandFlag);

  EXPECT_EQ(selected(), "(none)");
  EXPECT_EQ(rows(), Texts{});
}

TEST_F(ClipboardViewModelTest, CutsTheEndOfItsItemsWithinHalfASecond) {
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

TEST_F(ClipboardViewModelTest, CutsTheNewestOfTheLoadedItemsAfterARestart) {
  settings.defaults.set(keys::historySize, 3);
  startWith({"old", "middle", "new"});

  add("copy");
  runLoop.advance(500ms);
  settle();

  EXPECT_EQ(rows(), (Texts{"copy", "middle", "old"}));
}

TEST_F(ClipboardViewModelTest, SelectsTheTopRowWhenALowerLimitCutsTheHistory) {
  Texts texts;
  for (int count = 0; count < 20; ++count)
    texts.push_back(std::to_string(count));
  startWith(texts);
  select(15);

  settings.defaults.set(keys::historySize, 10);
  runLoop.advance(500ms);
  settle();

  EXPECT_EQ(rows().size(), 10U);
  EXPECT_EQ(selected(), rows().front());
}

TEST_F(ClipboardViewModelTest, SurvivesALimitBelowZero) {
  startWith({"a"});

  settings.defaults.set(keys::historySize, -5);
  runLoop.advance(500ms);
  settle();

  EXPECT_EQ(rows(), Texts{});
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

TEST_F(ClipboardViewModelTest, DropsASearchThatOutlivesIt) {
  startWith({"a"});
  viewModel->search();
  add("b");

  viewModel.reset();

  EXPECT_NO_FATAL_FAILURE(settle());
  EXPECT_EQ(stored(), Texts{"a"});
}

TEST_F(ClipboardViewModelTest, PastesTheSelectedRowForReturn) {
  startWith({"a", "b"});
  select(1);

  press(returnKey);

  ASSERT_EQ(clipboard.writes().size(), 1U);
  EXPECT_EQ(clipboard.writes()[0].item, viewModel->selectedItem().value()->item()->id());
  EXPECT_EQ(selected(), "a");
}

TEST_F(ClipboardViewModelTest, PastesTheRowOfADigitAmongTheRowsShown) {
  startWith({"apple", "pear", "apricot"});
  type("ap");

  press(19, commandFlag);

  ASSERT_EQ(clipboard.writes().size(), 1U);
  EXPECT_EQ(clipboard.writes()[0].item, context.records()[0]->id());
}

TEST_F(ClipboardViewModelTest, PastesNothingForADigitBeyondTheRowsOrZero) {
  startWith({"a", "b", "c"});

  EXPECT_TRUE(press(23, commandFlag)) << "five";
  EXPECT_FALSE(press(29, commandFlag)) << "zero";

  EXPECT_TRUE(clipboard.writes().empty());
}

TEST_F(ClipboardViewModelTest, ReversesTheFormattingWhileTheLeftOptionKeyIsDown) {
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

TEST_F(ClipboardViewModelTest, IgnoresTheRightOptionKey) {
  startWith({"a"});

  eventMonitor.send({KeyEvent::Type::flagsChanged, rightOptionKey, optionFlag});
  settle();

  EXPECT_FALSE(viewModel->isOptionPressed().value());
}

TEST_F(ClipboardViewModelTest, LeavesOtherKeysToTheWindows) {
  startWith({"a"});

  EXPECT_FALSE(press(53));
  EXPECT_FALSE(press(43, commandFlag));
  EXPECT_FALSE(press(0));
}

TEST_F(ClipboardViewModelTest, DoesTheWorkOfAKeyInALaterTurn) {
  startWith({"a", "b"});

  eventMonitor.press(downKey);
  EXPECT_EQ(selected(), "b");
  runLoop.runPosted();

  EXPECT_EQ(selected(), "a");
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

TEST_F(ClipboardViewModelTest, SelectsNoItemThatHasLeftTheHistory) {
  startWith({"a", "b"});
  const auto gone = viewModel->filteredItems().value()->at(1).item->shared_from_this();
  select(1);
  press(deleteKey, commandFlag);

  viewModel->select(gone);

  EXPECT_EQ(selected(), "b");
}

TEST_F(ClipboardViewModelTest, PastesTheFirstRowsByGlobalChordsOnlyWhileTheSettingIsOn) {
  startWith({"a", "b", "c"});
  const testsupport::FakeHotKeyService::Chord second{14, 0x300};
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

}  // namespace
