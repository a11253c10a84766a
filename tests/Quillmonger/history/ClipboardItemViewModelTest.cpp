#include "Quillmonger/history/ClipboardItemViewModel.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "Foundation/Text.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/FakeApplicationNaming.h"
#include "tests/support/FakeClipboard.h"
#include "tests/support/Records.h"
#include "tests/support/TestDefaults.h"

namespace {

using namespace quillmonger;
using Invert = ClipboardItemViewModel::Invert;
using RemoveFormatting = ClipboardManaging::RemoveFormatting;
using testsupport::makeRecord;
using Record = std::shared_ptr<ClipboardItem>;

class ClipboardItemViewModelTest : public testing::Test {
 protected:
  std::shared_ptr<ClipboardItemViewModel> viewModelOf(Record record) {
    return std::make_shared<ClipboardItemViewModel>(std::move(record), services);
  }
  Record excelCopy() {
    Payload payload;
    payload.emplace(pasteboardtype::NSPasteboardTypeString, foundation::Data("1\t2"));
    payload.emplace(pasteboardtype::NSPasteboardTypePNG, foundation::Data("pixels"));
    return std::make_shared<ClipboardItem>(std::move(payload), "com.microsoft.Excel", std::nullopt,
                                           testsupport::VirtualRunLoop::startDate());
  }
  RemoveFormatting pasted(const Record& record, Invert invert) {
    viewModelOf(record)->paste(invert);
    return clipboard.writes().back().removeFormatting;
  }

  testsupport::FakeClipboard clipboard;
  testsupport::TestDefaults settings;
  testsupport::FakeApplicationNaming naming;
  std::shared_ptr<const ClipboardItemViewModel::Services> services =
      std::make_shared<const ClipboardItemViewModel::Services>(
          ClipboardItemViewModel::Services{clipboard, settings.defaults, naming});
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

TEST_F(ClipboardItemViewModelTest, TakesASpreadsheetsTableForTextAndPastesItAsSuch) {
  settings.defaults.set(keys::alwaysPasteWithoutFormatting, true);
  const auto record = excelCopy();

  EXPECT_FALSE(viewModelOf(record)->isImage());
  EXPECT_EQ(pasted(record, Invert::no), RemoveFormatting::yes);
}

TEST_F(ClipboardItemViewModelTest, ReversesTheFormattingSettingForOnePaste) {
  const auto record = makeRecord("text");
  EXPECT_EQ(pasted(record, Invert::no), RemoveFormatting::no);
  EXPECT_EQ(pasted(record, Invert::yes), RemoveFormatting::yes);

  settings.defaults.set(keys::alwaysPasteWithoutFormatting, true);

  EXPECT_EQ(pasted(record, Invert::no), RemoveFormatting::yes);
  EXPECT_EQ(pasted(record, Invert::yes), RemoveFormatting::no);
}

TEST_F(ClipboardItemViewModelTest, PastesPicturesAndFilesWithAllTypesInAnyCase) {
  settings.defaults.set(keys::alwaysPasteWithoutFormatting, true);
  const auto picture = makeRecord("pixels", {}, pasteboardtype::NSPasteboardTypePNG);
  const auto file = makeRecord("file:///a", {}, pasteboardtype::NSPasteboardTypeFileURL);

  EXPECT_EQ(pasted(picture, Invert::no), RemoveFormatting::no);
  EXPECT_EQ(pasted(picture, Invert::yes), RemoveFormatting::no);
  EXPECT_EQ(pasted(file, Invert::no), RemoveFormatting::no);
}

TEST_F(ClipboardItemViewModelTest, WritesPastesAndCountsInThisOrder) {
  const auto record = makeRecord("text");
  std::size_t pastesWhenCounted = 0;
  const auto hold = record->onChange([&] { pastesWhenCounted = clipboard.writeCountsAtPaste().size(); });

  viewModelOf(record)->paste(Invert::no);

  EXPECT_EQ(clipboard.writes().size(), 1U);
  EXPECT_EQ(clipboard.writeCountsAtPaste(), std::vector<std::size_t>{1});
  EXPECT_EQ(pastesWhenCounted, 1U);
  EXPECT_EQ(record->timesPasted(), 1);
}

TEST_F(ClipboardItemViewModelTest, GivesTheApplicationsNameWhileItIsThere) {
  const auto url = *foundation::Url::parse("file:///apps/editor.desktop");
  const auto viewModel =
      viewModelOf(makeRecord("text", {}, pasteboardtype::NSPasteboardTypeString, {.identifier = "editor", .url = url}));
  EXPECT_EQ(viewModel->appName(), std::nullopt);

  naming.setDisplayName(url, "Editor");

  EXPECT_EQ(viewModel->appName(), "Editor");
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

}  // namespace
