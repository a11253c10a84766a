#include "Quillmonger/search/SearchManager.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/Quillmonger/search/Note.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
using quillmonger::CharacterRange;
using quillmonger::SearchManager;
using quillmonger::SearchResults;
namespace keys = quillmonger::keys;

using testsupport::Note;
using Notes = std::vector<std::shared_ptr<Note>>;

class SearchManagerTest : public testing::Test {
 protected:
  void search(const std::string& term) {
    manager->search(quillmonger::SearchItems<Note>(notes), term,
                    [this](const SearchResults<Note>& found) { results = found; });
  }
  std::vector<std::string> find(const std::string& term) {
    search(term);
    queue.run();
    runLoop.runPosted();
    std::vector<std::string> texts;
    for (const auto* note : results->found())
      texts.emplace_back(note->text().view);
    return texts;
  }
  void add(std::string text, std::chrono::seconds age, std::optional<std::string> appName = {}) {
    notes.push_back(std::make_shared<Note>(std::move(text), age, std::move(appName)));
  }

  using Texts = std::vector<std::string>;
  testsupport::VirtualRunLoop runLoop;
  testsupport::InlineBackgroundQueue queue;
  testsupport::TestDefaults settings;
  std::optional<SearchManager<Note>> manager{std::in_place, queue, runLoop, settings.defaults};
  Notes notes;
  SearchResults<Note> results;
};

TEST_F(SearchManagerTest, ReturnsAllItemsNewestFirstForAnEmptyTerm) {
  add("middle", 2s);
  add("oldest", 3s);
  add("newest", 1s);

  EXPECT_EQ(find(""), (Texts{"newest", "middle", "oldest"}));
  EXPECT_EQ(results->front().score, 0.0);
  EXPECT_EQ(results->front().match, std::nullopt);
}

TEST_F(SearchManagerTest, GivesAnEmptyListForAnEmptyHistory) { EXPECT_EQ(find("a"), Texts{}); }

TEST_F(SearchManagerTest, HighlightsTheFirstHit) {
  add("xABCy", 1s);

  find("abc");

  EXPECT_EQ(results->front().match, (CharacterRange{1, 3}));
}

TEST_F(SearchManagerTest, HeedsTheSettingForCase) {
  add("xABCy", 1s);

  settings.defaults.set(keys::searchCaseSensitive, true);

  EXPECT_EQ(find("abc"), Texts{});
}

TEST_F(SearchManagerTest, HeedsTheSettingForExpressions) {
  add("abc", 1s);
  add("a.c", 2s);
  EXPECT_EQ(find("a.c"), Texts{"a.c"});

  settings.defaults.set(keys::searchRegex, true);

  EXPECT_EQ(find("a.c"), (Texts{"abc", "a.c"}));
}

TEST_F(SearchManagerTest, FindsNothingForAnInvalidExpression) {
  settings.defaults.set(keys::searchRegex, true);
  add("(", 1s, "(");

  EXPECT_EQ(find("("), Texts{});
}

TEST_F(SearchManagerTest, CompletesForAnExpressionThatWouldRunForEver) {
  settings.defaults.set(keys::searchRegex, true);
  add(std::string(64, 'a') + "!", 1s, std::string(64, 'a') + "!");
  add("aaa", 2s);

  EXPECT_EQ(find("(a+)+$"), Texts{"aaa"});
}

TEST_F(SearchManagerTest, ReturnsEveryItemForAnAnchorAlone) {
  settings.defaults.set(keys::searchRegex, true);
  add("a", 1s);
  add("b", 2s);

  EXPECT_EQ(find("^^"), (Texts{"a", "b"}));
  EXPECT_EQ(results->front().match, std::nullopt);
  EXPECT_EQ(find("$"), (Texts{"a", "b"}));
  EXPECT_EQ(find("^b"), Texts{"b"});
}

TEST_F(SearchManagerTest, PutsHitsInTheApplicationNameAfterHitsInTheText) {
  add("page", 1s, "Safari");
  add("on safari", 3s, "Files");
  add("other", 2s, "Files");

  EXPECT_EQ(find("Safari"), (Texts{"on safari", "page"}));
  EXPECT_EQ(results->at(0).score, 0.0);
  EXPECT_EQ(results->at(1).score, 1.0);
  EXPECT_EQ(results->at(1).match, std::nullopt);
}

TEST_F(SearchManagerTest, AsksEachApplicationOfAMixedHistoryForItsOwnName) {
  add("1", 1s, "Files");
  add("2", 2s, "Safari");
  add("3", 3s);
  add("4", 4s, "Files");
  add("5", 5s, "Safari");

  EXPECT_EQ(find("safari"), (Texts{"2", "5"}));
}

TEST_F(SearchManagerTest, FindsTheSameInALongTextAsInAShortOne) {
  const std::string hay(20'000, 'x');
  add(hay + "Needle" + hay, 1s);
  add("needle", 2s);

  find("needle");

  ASSERT_EQ(results->size(), 2U);
  EXPECT_EQ(results->at(0).match, (CharacterRange{20'000, 20'005}));
}

TEST_F(SearchManagerTest, HighlightsAMatchOnTheVeryLastCharacter) {
  add("ends in z", 1s);
  add("endet in ü", 2s);

  find("z");
  EXPECT_EQ(results->front().match, (CharacterRange{8, 8}));
  find("Ü");
  EXPECT_EQ(results->front().match, (CharacterRange{9, 9}));
}

TEST_F(SearchManagerTest, HighlightsOnlyTheFirstOfSeveralHits) {
  add("abc abc abc", 1s);

  find("abc");

  EXPECT_EQ(results->size(), 1U);
  EXPECT_EQ(results->front().match, (CharacterRange{0, 2}));
}

TEST_F(SearchManagerTest, TakesAnAnchorForAPlainCharacterWithoutExpressions) {
  add("a^b", 1s);
  add("ab", 2s);

  EXPECT_EQ(find("^"), Texts{"a^b"});
}

TEST_F(SearchManagerTest, LeavesTheApplicationNameOutWhenTheSettingSaysSo) {
  settings.defaults.set(keys::searchAppName, false);
  add("page", 1s, "Safari");

  EXPECT_EQ(find("Safari"), Texts{});
}

TEST_F(SearchManagerTest, FindsTheTextOfAnItemWhoseApplicationIsGone) {
  add("page", 1s);
  add("other", 2s);

  EXPECT_EQ(find("page"), Texts{"page"});
}

TEST_F(SearchManagerTest, FindsAnItemWithoutTextByItsApplicationName) {
  add("", 1s, "Painter");

  EXPECT_EQ(find("paint"), Texts{""});
}

TEST_F(SearchManagerTest, FindsAnItemWithoutTextByItsApplicationNameAloneForAnExpressionThatMatchesNothingToo) {
  settings.defaults.set(keys::searchRegex, true);
  add("", 1s, "Painter");
  add("", 2s);

  EXPECT_EQ(find("x*"), Texts{""});
  EXPECT_EQ(results->front().score, 1.0);
  EXPECT_EQ(results->front().match, std::nullopt);
}

TEST_F(SearchManagerTest, TakesAnAnchorBesideAnythingElseForAnOrdinaryExpression) {
  settings.defaults.set(keys::searchRegex, true);
  add("ab", 1s);
  add("ba", 2s);

  EXPECT_EQ(find("^a"), Texts{"ab"});
  EXPECT_EQ(find("^$"), Texts{});
}

TEST_F(SearchManagerTest, HeedsTheSettingForCaseInTheApplicationNameToo) {
  settings.defaults.set(keys::searchCaseSensitive, true);
  add("page", 1s, "Safari");

  EXPECT_EQ(find("safari"), Texts{});
  EXPECT_EQ(find("Safari"), Texts{"page"});
}

TEST_F(SearchManagerTest, FindsALongHistoryWholeWhateverItsLength) {
  for (const int count : {499, 500, 501, 1000, 1001}) {
    notes.clear();
    for (int age = 1; age <= count; ++age)
      add(std::to_string(age), std::chrono::seconds(age));

    const auto found = find("");

    ASSERT_EQ(found.size(), static_cast<std::size_t>(count));
    for (std::size_t row = 0; row < found.size(); ++row)
      ASSERT_EQ(found[row], std::to_string(row + 1)) << count;
  }
}

TEST_F(SearchManagerTest, KeepsTheOrderOfItemsOfTheSameMoment) {
  add("first", 1s);
  add("second", 1s);
  add("third", 1s);

  EXPECT_EQ(find(""), (Texts{"first", "second", "third"}));
}

TEST_F(SearchManagerTest, GivesAShortHistoryToOneWorkerAndALongOneToTwo) {
  for (int count = 0; count < 499; ++count)
    add("x", 1s);
  find("x");
  add("x", 1s);
  find("x");

  EXPECT_EQ(queue.performedCounts(), (std::vector<std::size_t>{1, 2}));
  EXPECT_EQ(results->size(), 500U);
}

TEST_F(SearchManagerTest, GivesALongHistoryToOneWorkerOnOneProcessor) {
  testsupport::InlineBackgroundQueue oneProcessor(1);
  SearchManager<Note> frugal(oneProcessor, runLoop, settings.defaults);
  for (int count = 0; count < 1000; ++count)
    add("x", 1s);

  frugal.search(quillmonger::SearchItems<Note>(notes), "x", [this](const auto& found) { results = found; });
  oneProcessor.run();
  runLoop.runPosted();

  EXPECT_EQ(oneProcessor.performedCounts(), std::vector<std::size_t>{1});
  EXPECT_EQ(results->size(), 1000U);
}

TEST_F(SearchManagerTest, PutsTheFindsOfBothWorkersIntoOneOrder) {
  for (int age = 1; age <= 501; ++age)
    add(std::to_string(age), std::chrono::seconds(502 - age));

  const auto found = find("");

  ASSERT_EQ(found.size(), 501U);
  EXPECT_EQ(found.front(), "501");
  EXPECT_EQ(found.back(), "1");
}

TEST_F(SearchManagerTest, ReturnsAtOnceAndCompletesOnTheMainQueue) {
  add("a", 1s);

  search("a");
  EXPECT_EQ(results, nullptr);
  queue.run();
  EXPECT_EQ(results, nullptr);
  runLoop.runPosted();

  EXPECT_NE(results, nullptr);
}

TEST_F(SearchManagerTest, CompletesOnceForEachSearch) {
  int completions = 0;
  for (int count = 0; count < 3; ++count)
    manager->search(quillmonger::SearchItems<Note>(notes), "a", [&completions](const auto&) { ++completions; });
  queue.run();
  runLoop.runPosted();
  queue.run();
  runLoop.runPosted();

  EXPECT_EQ(completions, 3);
}

TEST_F(SearchManagerTest, CompletesNothingOnceItIsGoneBeforeTheWorkBegins) {
  add("a", 1s);
  search("a");

  manager.reset();
  queue.run();
  runLoop.runPosted();

  EXPECT_EQ(results, nullptr);
}

TEST_F(SearchManagerTest, CompletesWhenItIsGoneAfterTheWorkBegan) {
  add("a", 1s);
  search("a");
  queue.run();

  manager.reset();
  runLoop.runPosted();

  EXPECT_NE(results, nullptr);
}

}  // namespace
