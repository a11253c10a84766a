#include "Quillmonger/search/SearchItems.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "tests/Quillmonger/search/Note.h"

namespace {

using quillmonger::PreparedTexts;
using testsupport::Note;
using Items = quillmonger::SearchItems<Note>;
using Notes = std::vector<std::shared_ptr<Note>>;

Notes makeNotes(std::size_t count) {
  Notes notes;
  for (std::size_t number = 0; number < count; ++number)
    notes.push_back(std::make_shared<Note>(std::to_string(number), std::chrono::seconds(number)));
  return notes;
}

TEST(SearchItems, AreTheSameAsAPlainListAfterEveryChange) {
  std::mt19937 random(7);
  auto expected = makeNotes(1500);
  Items items(expected);
  for (int round = 0; round < 400; ++round) {
    if (random() % 2 == 0) {
      const auto batch = makeNotes(random() % 3);
      items.insertFirst(batch);
      expected.insert(expected.begin(), batch.begin(), batch.end());
    } else if (random() % 3 == 0) {
      const auto count = random() % 12;
      const auto cut = expected.end() - static_cast<std::ptrdiff_t>(count);
      EXPECT_EQ(items.removeLast(count), Notes(cut, expected.end()));
      expected.erase(cut, expected.end());
    } else {
      const auto at = expected.begin() + static_cast<std::ptrdiff_t>(random() % expected.size());
      items.remove(**at);
      expected.erase(at);
    }
    ASSERT_EQ(items.all(), expected);
    ASSERT_EQ(items.size(), expected.size());
  }
}

TEST(SearchItems, StayAsTheyAreWhenACopyChanges) {
  const auto notes = makeNotes(600);
  Items items(notes);
  const Items copy = items;

  items.remove(*notes[3]);
  items.removeLast(590);
  items.insertFirst(makeNotes(1));

  EXPECT_EQ(copy.all(), notes);
}

TEST(SearchItems, KeepWhatWasPreparedOfTheChunksThatStay) {
  Items items(makeNotes(1100));
  const auto last = items.chunks().back();

  items.insertFirst(makeNotes(1));

  EXPECT_EQ(items.chunks().back(), last);
}

TEST(PreparedTexts, FindATermInOneTextAloneAndNeverAcrossTwo) {
  PreparedTexts texts;
  const Note first("one ab", {});
  const Note second("cd two", {});
  texts.add(first.text());
  texts.add(second.text());

  EXPECT_FALSE(texts.find("abcd", 0, 2));
  ASSERT_TRUE(texts.find("cd", 0, 2));
  EXPECT_EQ(texts.find("cd", 0, 2)->text, 1U);
  EXPECT_EQ(texts.find("two", 0, 2)->offset, 3U);
}

TEST(PreparedTexts, KeepWithinTheTextsThatWereAskedFor) {
  PreparedTexts texts;
  const Note note("same", {});
  for (int count = 0; count < 4; ++count)
    texts.add(note.text());

  EXPECT_EQ(texts.find("same", 2, 4)->text, 2U);
  EXPECT_FALSE(texts.find("same", 2, 2));
}

TEST(PreparedTexts, LeaveALongTextOut) {
  PreparedTexts texts;
  const Note note(std::string(PreparedTexts::longestText + 1, 'a'), {});
  texts.add(note.text());
  texts.add(std::nullopt);

  EXPECT_EQ(texts.kind(0), PreparedTexts::Kind::unprepared);
  EXPECT_EQ(texts.kind(1), PreparedTexts::Kind::unprepared);
  EXPECT_FALSE(texts.find("a", 0, 2));
}

}  // namespace
