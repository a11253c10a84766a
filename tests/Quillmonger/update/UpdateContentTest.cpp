#include "Quillmonger/update/UpdateContent.h"

#include <gtest/gtest.h>

#include "tests/support/FakeUpdateService.h"

namespace {

using quillmonger::UpdateContent;
using quillmonger::UpdateFailure;
using quillmonger::UpdateStatus;
using Answer = UpdateContent::Answer;
using Stage = UpdateStatus::Stage;

// Each key stands for its text, with the places that are filled.
std::string textOf(std::string_view key) { return std::string(key) + " <%1 %2>"; }

UpdateContent contentOf(const UpdateStatus& status) { return quillmonger::updateContent(status, "1.0", textOf); }

std::vector<Answer> answersOf(const UpdateContent& content) {
  std::vector<Answer> answers;
  for (const auto& button : content.buttons)
    answers.push_back(button.answer);
  return answers;
}

TEST(UpdateContent, ShowsThatACheckGoesOnAndHowToEndIt) {
  const auto content = contentOf({.stage = Stage::checking});

  EXPECT_LT(content.progress.value(), 0);
  EXPECT_EQ(answersOf(content), std::vector{Answer::close});
}

TEST(UpdateContent, NamesTheOwnVersionWhenItIsTheNewest) {
  const auto content = contentOf({.stage = Stage::upToDate});

  EXPECT_EQ(content.message, "update_none_message <1.0 %2>");
  EXPECT_FALSE(content.progress.has_value());
}

TEST(UpdateContent, OffersAVersionWithWhatIsNewInIt) {
  const auto content = contentOf({.stage = Stage::available, .update = testsupport::updateTo("2.0")});

  EXPECT_EQ(content.heading, "update_available_title <2.0 %2>");
  EXPECT_EQ(content.message, "update_available_notes_message <1.0 %2>");
  EXPECT_EQ(content.notes, "What is new in 2.0");
  EXPECT_EQ(answersOf(content), (std::vector{Answer::download, Answer::close, Answer::skip}));
}

TEST(UpdateContent, AnnouncesNoNotesWhereThereAreNone) {
  auto update = testsupport::updateTo("2.0");
  update.notes.clear();

  EXPECT_EQ(contentOf({.stage = Stage::available, .update = update}).message, "update_available_message <1.0 %2>");
}

TEST(UpdateContent, ShowsHowMuchOfTheFileIsThere) {
  auto update = testsupport::updateTo("2.0");
  update.length = 12'400'000;

  const auto content = contentOf({.stage = Stage::downloading, .update = update, .received = 3'100'000});

  EXPECT_EQ(content.progress, 0.25);
  EXPECT_EQ(content.message, "update_downloading_message <25 12>");
  EXPECT_EQ(answersOf(content), std::vector{Answer::close});
}

TEST(UpdateContent, CallsASmallFileAMegabyte) {
  const auto content = contentOf({.stage = Stage::downloading, .update = testsupport::updateTo("2.0")});

  EXPECT_EQ(content.message, "update_downloading_message <0 1>");
}

TEST(UpdateContent, NeverShowsMoreThanAll) {
  const auto content =
      contentOf({.stage = Stage::downloading, .update = testsupport::updateTo("2.0"), .received = 5000});

  EXPECT_EQ(content.progress, 1.0);
}

TEST(UpdateContent, AsksBeforeItOpensTheFile) {
  const auto content = contentOf({.stage = Stage::ready, .update = testsupport::updateTo("2.0")});

  EXPECT_EQ(answersOf(content), (std::vector{Answer::install, Answer::close, Answer::skip}));
}

TEST(UpdateContent, HasAReasonForEachFailure) {
  std::vector<std::string> reasons;
  for (const auto failure : {UpdateFailure::unreachable, UpdateFailure::untrusted, UpdateFailure::damaged,
                             UpdateFailure::notWritten, UpdateFailure::notOpened})
    reasons.push_back(contentOf({.stage = Stage::failed, .failure = failure}).message);

  EXPECT_EQ(reasons, (std::vector<std::string>{"update_failed_unreachable <%1 %2>", "update_failed_untrusted <%1 %2>",
                                               "update_failed_damaged <%1 %2>", "update_failed_not_written <%1 %2>",
                                               "update_failed_not_opened <%1 %2>"}));
}

}  // namespace
