#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <vector>

#include "Quillmonger/history/ClipboardItemViewModel.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/ItemServices.h"
#include "tests/support/Records.h"

namespace {

using namespace quillmonger;
using Invert = ClipboardItemViewModel::Invert;
using RemoveFormatting = ClipboardManaging::RemoveFormatting;
using testsupport::makeRecord;
using Record = std::shared_ptr<ClipboardItem>;

class ItemPasteTest : public testing::Test, protected testsupport::ItemServices {
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
};

TEST_F(ItemPasteTest, TakesASpreadsheetsTableForTextAndPastesItAsSuch) {
  settings.defaults.set(keys::alwaysPasteWithoutFormatting, true);
  const auto record = excelCopy();

  EXPECT_FALSE(viewModelOf(record)->isImage());
  EXPECT_EQ(pasted(record, Invert::no), RemoveFormatting::yes);
}

TEST_F(ItemPasteTest, ReversesTheFormattingSettingForOnePaste) {
  const auto record = makeRecord("text");
  EXPECT_EQ(pasted(record, Invert::no), RemoveFormatting::no);
  EXPECT_EQ(pasted(record, Invert::yes), RemoveFormatting::yes);

  settings.defaults.set(keys::alwaysPasteWithoutFormatting, true);

  EXPECT_EQ(pasted(record, Invert::no), RemoveFormatting::yes);
  EXPECT_EQ(pasted(record, Invert::yes), RemoveFormatting::no);
}

TEST_F(ItemPasteTest, PastesPicturesAndFilesWithAllTypesInAnyCase) {
  settings.defaults.set(keys::alwaysPasteWithoutFormatting, true);
  const auto picture = makeRecord("pixels", {}, pasteboardtype::NSPasteboardTypePNG);
  const auto file = makeRecord("file:///a", {}, pasteboardtype::NSPasteboardTypeFileURL);

  EXPECT_EQ(pasted(picture, Invert::no), RemoveFormatting::no);
  EXPECT_EQ(pasted(picture, Invert::yes), RemoveFormatting::no);
  EXPECT_EQ(pasted(file, Invert::no), RemoveFormatting::no);
  settings.defaults.set(keys::alwaysPasteWithoutFormatting, false);
  EXPECT_EQ(pasted(picture, Invert::yes), RemoveFormatting::no);
  EXPECT_EQ(pasted(file, Invert::yes), RemoveFormatting::no);
}

TEST_F(ItemPasteTest, WritesPastesAndCountsInThisOrder) {
  const auto record = makeRecord("text");
  std::size_t pastesWhenCounted = 0;
  const auto hold = record->onChange([&] { pastesWhenCounted = clipboard.writeCountsAtPaste().size(); });

  viewModelOf(record)->paste(Invert::no);

  EXPECT_EQ(clipboard.writes().size(), 1U);
  EXPECT_EQ(clipboard.writeCountsAtPaste(), std::vector<std::size_t>{1});
  EXPECT_EQ(pastesWhenCounted, 1U);
  EXPECT_EQ(record->timesPasted(), 1);
}

TEST_F(ItemPasteTest, CountsOnFromThePastesOfEarlierRuns) {
  const auto record = makeRecord("text");
  record->setTimesPasted(41);

  viewModelOf(record)->paste(Invert::no);

  EXPECT_EQ(record->timesPasted(), 42);
}

using ItemPasteDeathTest = ItemPasteTest;

TEST_F(ItemPasteDeathTest, StopsTheProcessAtTheLargestCount) {
  const auto record = makeRecord("text");
  record->setTimesPasted(std::numeric_limits<std::int64_t>::max());

  EXPECT_DEATH(viewModelOf(record)->paste(Invert::no), "pasted too often to be counted");
}

}  // namespace
