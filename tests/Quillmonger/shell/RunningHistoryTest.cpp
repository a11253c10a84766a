#include "Quillmonger/shell/RunningHistory.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/ClipboardViewModelFixture.h"

namespace {

using namespace quillmonger;
using Term = CommandedHistory::Term;

class RunningHistoryTest : public testsupport::ClipboardViewModelFixture {
 protected:
  void startWith(const Texts& texts) {
    ClipboardViewModelFixture::startWith(texts);
    history.emplace(RunningHistory::Collaborators{clipboard, *viewModel, searchManager, runLoop, notificationCenter});
    for (const char* name : {"ItemDeleted", "HistoryCleared"})
      tokens.push_back(notificationCenter.observe(name, [this, name](const auto&) { posted.emplace_back(name); }));
  }
  static Texts textsOf(const CommandedHistory::Records& records) {
    Texts texts;
    for (const auto& record : records)
      texts.push_back(*record->data("public.utf8-plain-text")->bytes());
    return texts;
  }
  Texts found(const std::string& term, Term kind) {
    Texts texts{"(no answer)"};
    history->search(term, kind, [&texts](const CommandedHistory::Records& records) { texts = textsOf(records); });
    settle();
    return texts;
  }

  std::optional<RunningHistory> history;
  std::vector<std::string> posted;
  std::vector<foundation::Subscription> tokens;
};

TEST_F(RunningHistoryTest, GivesAllRecordsNewestFirst) {
  startWith({"a", "b"});
  add("c");
  settle();

  EXPECT_EQ(textsOf(history->records()), (Texts{"c", "b", "a"}));
}

TEST_F(RunningHistoryTest, GivesAllRecordsWhateverTheWindowSearches) {
  startWith({"a", "b"});
  type("b");

  EXPECT_EQ(textsOf(history->records()), (Texts{"b", "a"}));
}

TEST_F(RunningHistoryTest, FindsAsTheWindowDoesAndLeavesItAlone) {
  startWith({"An Apple", "pear", "apples"});

  EXPECT_EQ(found("APPLE", Term::text), (Texts{"apples", "An Apple"}));
  EXPECT_EQ(rows(), (Texts{"apples", "pear", "An Apple"}));
}

TEST_F(RunningHistoryTest, FindsTheSameWhateverTheSearchSettingsAre) {
  settings.defaults.set(keys::searchCaseSensitive, true);
  settings.defaults.set(keys::searchRegex, true);
  startWith({"a.b", "aXb"});

  EXPECT_EQ(found("A.B", Term::text), Texts{"a.b"});
}

TEST_F(RunningHistoryTest, FindsByExpression) {
  startWith({"a1", "b2", "a"});

  EXPECT_EQ(found("^A[0-9]$", Term::regularExpression), Texts{"a1"});
}

TEST_F(RunningHistoryTest, AnswersNoSearchAfterItsEnd) {
  startWith({"a"});
  bool isAnswered = false;
  history->search("a", Term::text, [&isAnswered](const auto&) { isAnswered = true; });

  history.reset();
  settle();

  EXPECT_FALSE(isAnswered);
}

TEST_F(RunningHistoryTest, PastesAsTheUserDoes) {
  startWith({"a", "b"});
  const auto record = history->records()[1];

  history->paste(record);

  EXPECT_EQ(clipboard.writes().back().item, record->id());
  EXPECT_EQ(clipboard.writeCountsAtPaste(), std::vector<std::size_t>{1});
  EXPECT_EQ(record->timesPasted(), 1);
}

TEST_F(RunningHistoryTest, RemovesRecordsFromTheListAndTheStoreAndTellsOnce) {
  startWith({"a", "b", "c"});
  const auto records = history->records();

  history->remove({records[0], records[2], records[0]});

  EXPECT_EQ(textsOf(history->records()), Texts{"b"});
  EXPECT_EQ(stored(), Texts{"b"});
  EXPECT_EQ(posted, Texts{"ItemDeleted"});
}

TEST_F(RunningHistoryTest, RemovesAllAndTells) {
  startWith({"a", "b"});

  history->removeAll();
  settle();

  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(stored(), Texts{});
  EXPECT_EQ(posted, Texts{"HistoryCleared"});
}

TEST_F(RunningHistoryTest, PutsBytesOfATypeOnTheClipboard) {
  startWith({});

  history->copy("public.png", "pixels");

  EXPECT_EQ(clipboard.lastPayload(), (Payload{{"public.png", foundation::Data("pixels")}}));
}

}  // namespace
