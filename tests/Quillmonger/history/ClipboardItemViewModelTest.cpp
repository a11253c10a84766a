#include "Quillmonger/history/ClipboardItemViewModel.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "Foundation/Text.h"
#include "tests/support/InLocale.h"
#include "tests/support/ItemServices.h"
#include "tests/support/Records.h"

namespace {

using namespace quillmonger;
using testsupport::makeRecord;
using Record = std::shared_ptr<ClipboardItem>;

class ClipboardItemViewModelTest : public testing::Test, protected testsupport::ItemServices {
 protected:
  testsupport::InLocale locale{"en_US"};

  std::shared_ptr<ClipboardItemViewModel> viewModelOf(Record record) {
    return std::make_shared<ClipboardItemViewModel>(std::move(record), services);
  }
};

TEST_F(ClipboardItemViewModelTest, GivesThePlainTextTrimmed) {
  EXPECT_EQ(viewModelOf(makeRecord(" \n hello \t"))->text().view, "hello");
}

TEST_F(ClipboardItemViewModelTest, GivesNoTextForAPicture) {
  const auto viewModel = viewModelOf(makeRecord("pixels", {}, pasteboardtype::NSPasteboardTypePNG));

  EXPECT_EQ(viewModel->text().view, "");
  EXPECT_EQ(viewModel->rowText(100).head, "");
  EXPECT_TRUE(viewModel->isImage());
}

TEST_F(ClipboardItemViewModelTest, GivesNoTextForBytesThatAreNone) {
  EXPECT_EQ(viewModelOf(makeRecord("\xFF\xFE"))->text().view, "");
}

TEST_F(ClipboardItemViewModelTest, GivesADecodedFileLocationWithItsScheme) {
  const auto viewModel = viewModelOf(makeRecord("file:///a%20b.txt", {}, pasteboardtype::NSPasteboardTypeFileURL));

  EXPECT_EQ(viewModel->text().view, "file:///a b.txt");
  EXPECT_EQ(viewModel->rowText(100).head, "file:///a b.txt");
  EXPECT_TRUE(viewModel->isFileURL());
  EXPECT_EQ(viewModel->fileURL(), foundation::Url::parse("file:///a%20b.txt"));
}

TEST_F(ClipboardItemViewModelTest, GivesNoTextForALocationThatDecodesToNone) {
  EXPECT_EQ(viewModelOf(makeRecord("file:///%FF", {}, pasteboardtype::NSPasteboardTypeFileURL))->text().view, "");
}

TEST_F(ClipboardItemViewModelTest, TakesWhatIsNoLocationForNoFile) {
  const auto viewModel = viewModelOf(makeRecord("no location", {}, pasteboardtype::NSPasteboardTypeFileURL));

  EXPECT_FALSE(viewModel->isFileURL());
  EXPECT_EQ(viewModel->fileURL(), std::nullopt);
}

TEST_F(ClipboardItemViewModelTest, GivesThePlainTextBesideALocationThatIsNone) {
  Payload payload;
  payload.emplace(pasteboardtype::NSPasteboardTypeFileURL, foundation::Data("no location"));
  payload.emplace(pasteboardtype::NSPasteboardTypeString, foundation::Data(" plain "));
  const auto record = std::make_shared<ClipboardItem>(std::move(payload), std::nullopt, std::nullopt,
                                                      testsupport::VirtualRunLoop::startDate());

  EXPECT_EQ(viewModelOf(record)->text().view, "plain");
}

TEST_F(ClipboardItemViewModelTest, GivesTheLocationOfAFileRatherThanItsPlainText) {
  Payload payload;
  payload.emplace(pasteboardtype::NSPasteboardTypeFileURL, foundation::Data("file:///a%20b"));
  payload.emplace(pasteboardtype::NSPasteboardTypeString, foundation::Data("plain"));
  const auto record = std::make_shared<ClipboardItem>(std::move(payload), std::nullopt, std::nullopt,
                                                      testsupport::VirtualRunLoop::startDate());

  EXPECT_EQ(viewModelOf(record)->text().view, "file:///a b");
}

TEST_F(ClipboardItemViewModelTest, GivesTheApplicationsNameWhileItIsThere) {
  const auto url = *foundation::Url::parse("file:///apps/editor.desktop");
  const auto viewModel =
      viewModelOf(makeRecord("text", {}, pasteboardtype::NSPasteboardTypeString, {.identifier = "editor", .url = url}));
  EXPECT_EQ(viewModel->appName(), std::nullopt);

  naming.setDisplayName(url, "Editor");
  EXPECT_EQ(viewModel->appName(), "Editor");
  naming.forget(url);

  EXPECT_EQ(viewModel->appName(), std::nullopt);
  EXPECT_EQ(viewModelOf(makeRecord("text"))->appName(), std::nullopt);
}

TEST_F(ClipboardItemViewModelTest, GivesARowTheWholeOfAShortText) {
  const auto row = viewModelOf(makeRecord("  short  "))->rowText(8);

  EXPECT_EQ(row.head, "short");
  EXPECT_EQ(row.tail, "");
}

TEST_F(ClipboardItemViewModelTest, GivesARowTheTwoEndsOfALongText) {
  const auto row = viewModelOf(makeRecord("start " + std::string(1000, '-') + " end"))->rowText(8);

  EXPECT_EQ(row.head, "start --");
  EXPECT_EQ(row.tail, "---- end");
}

class CutTexts : public ClipboardItemViewModelTest, public testing::WithParamInterface<std::size_t> {};

TEST_P(CutTexts, AreCutBetweenCharacters) {
  std::string text;
  for (int count = 0; count < 20; ++count)
    text += "a\u00E9\u4E2D\U0001F600";

  const auto row = viewModelOf(makeRecord(text))->rowText(GetParam());

  EXPECT_TRUE(foundation::isValidUtf8(row.head));
  EXPECT_TRUE(foundation::isValidUtf8(row.tail));
  EXPECT_TRUE(text.starts_with(row.head));
  EXPECT_TRUE(text.ends_with(row.tail));
  EXPECT_GT(row.head.size() + 4, GetParam());
  EXPECT_GT(row.tail.size() + 4, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Limits, CutTexts, testing::Range<std::size_t>(10, 21));

TEST_F(ClipboardItemViewModelTest, IsAnotherRowForEachViewModelOfARecord) {
  const auto record = makeRecord("text");

  EXPECT_NE(viewModelOf(record)->id(), viewModelOf(record)->id());
}

TEST_F(ClipboardItemViewModelTest, TellsItsEnd) {
  auto viewModel = viewModelOf(makeRecord("text"));
  const auto record = viewModel->item();
  const auto line = "ClipboardItemViewModel: deinit " + viewModel->id().toString() + "\n";
  testing::internal::CaptureStdout();

  viewModel.reset();

  EXPECT_EQ(testing::internal::GetCapturedStdout(), line);
}

TEST_F(ClipboardItemViewModelTest, TellsTheSizeAndTheLinesOfAText) {
  EXPECT_EQ(viewModelOf(makeRecord("one\ntwo\n"))->details(), "8 bytes • 2 lines");
  EXPECT_EQ(viewModelOf(makeRecord("x"))->details(), "1 byte • 1 line");
  EXPECT_EQ(viewModelOf(makeRecord(""))->details(), "Zero KB • 0 lines");
}

TEST_F(ClipboardItemViewModelTest, TellsTheWholeSizeButTheLinesOfTheTrimmedText) {
  EXPECT_EQ(viewModelOf(makeRecord("\n\none\ntwo\n\n"))->details(), "11 bytes • 2 lines");
  EXPECT_EQ(viewModelOf(makeRecord(" \n "))->details(), "3 bytes • 0 lines");
}

TEST_F(ClipboardItemViewModelTest, TellsTheSizeAndTheDimensionsOfAPicture) {
  pictures.setPicture("pixels", {192, 108});
  const auto viewModel = viewModelOf(makeRecord("pixels", {}, pasteboardtype::NSPasteboardTypePNG));

  EXPECT_EQ(viewModel->text().view, "");
  EXPECT_EQ(viewModel->details(), "6 bytes • 192×108");
}

TEST_F(ClipboardItemViewModelTest, TellsTheLinesOfAPictureThatIsNone) {
  EXPECT_EQ(viewModelOf(makeRecord("broken", {}, pasteboardtype::NSPasteboardTypePNG))->details(), "6 bytes • 0 lines");
}

TEST_F(ClipboardItemViewModelTest, RecognisesWhatItsTrimmedTextHolds) {
  const auto results = viewModelOf(makeRecord("  #FFF\n"))->oculetResults();

  ASSERT_NE(colorResult(*results), nullptr);
  EXPECT_EQ(results->size(), 1U);
  EXPECT_TRUE(viewModelOf(makeRecord("[1, 2]"))->hasOculetResults());
  EXPECT_FALSE(viewModelOf(makeRecord("prose"))->hasOculetResults());
}

TEST_F(ClipboardItemViewModelTest, RecognisesNothingInAPictureOrAFile) {
  const auto file = viewModelOf(makeRecord("file:///tmp/a%20b.txt", {}, pasteboardtype::NSPasteboardTypeFileURL));

  EXPECT_EQ(file->text().view, "file:///tmp/a b.txt");
  EXPECT_FALSE(file->hasOculetResults());
  EXPECT_FALSE(viewModelOf(makeRecord("123", {}, pasteboardtype::NSPasteboardTypePNG))->hasOculetResults());
}

TEST_F(ClipboardItemViewModelTest, ExaminesAShortTextOnce) {
  const auto viewModel = viewModelOf(makeRecord("2024"));

  EXPECT_EQ(viewModel->oculetResults(), viewModel->oculetResults());
}

TEST_F(ClipboardItemViewModelTest, LetsGoOfALongDocumentWithItsLastUser) {
  const std::string document = "[\"" + std::string(100'000, 'x') + "\"]";
  const auto viewModel = viewModelOf(makeRecord(document));

  std::weak_ptr<const OculetResults> results = viewModel->oculetResults();

  EXPECT_TRUE(results.expired());
  EXPECT_TRUE(viewModel->hasOculetResults());
  EXPECT_EQ(jsonResult(*viewModel->oculetResults())->json, document);
}

TEST_F(ClipboardItemViewModelTest, RecognisesNothingInALongProse) {
  EXPECT_FALSE(viewModelOf(makeRecord(std::string(100'000, 'x') + " 2024"))->hasOculetResults());
}

TEST_F(ClipboardItemViewModelTest, IsEqualToItselfAlone) {
  const auto record = makeRecord("a");
  const auto first = viewModelOf(record);
  const auto second = viewModelOf(record);

  EXPECT_TRUE(*first == *first);
  EXPECT_FALSE(*first == *second);
  EXPECT_EQ(std::hash<ClipboardItemViewModel>()(*first), std::hash<ClipboardItemViewModel>()(*first));
  EXPECT_NE(std::hash<ClipboardItemViewModel>()(*first), std::hash<ClipboardItemViewModel>()(*second));
}

TEST_F(ClipboardItemViewModelTest, HashesItsTextBesideItsIdentifier) {
  const auto record = makeRecord("pixels", {}, pasteboardtype::NSPasteboardTypePNG);
  const auto viewModel = viewModelOf(record);
  const auto hash = std::hash<ClipboardItemViewModel>()(*viewModel);

  record->merge(*makeRecord("text"), ClipboardItem::IncludingData::yes);

  EXPECT_EQ(viewModel->text().view, "text");
  EXPECT_NE(std::hash<ClipboardItemViewModel>()(*viewModel), hash);
}

}  // namespace
