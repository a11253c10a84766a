#include "Quillmonger/capture/ClipboardItem.h"

#include <gtest/gtest.h>

#include <limits>

#include "Quillmonger/capture/PasteboardTypes.h"

namespace quillmonger {

namespace {

using foundation::Data;
using foundation::Date;
using namespace pasteboardtype;

ClipboardItem item(Payload payload, std::optional<std::string> source = std::nullopt) {
  return ClipboardItem(std::move(payload), std::move(source), std::nullopt, Date());
}
Payload of(std::initializer_list<std::pair<std::string_view, std::optional<Data>>> entries) {
  Payload payload;
  for (const auto& [type, data] : entries)
    payload.emplace(type, data);
  return payload;
}
std::optional<std::int64_t> changeCountOf(const std::string& text) {
  return item(of({{modified, Data(text)}})).modifiedChangeCount();
}
std::string imageOf(const ClipboardItem& record) {
  const auto image = record.image();
  return image ? *image->bytes() : "none";
}

TEST(ClipboardItem, IsMadeWithARandomIdentityAndUnpasted) {
  const auto first = item({});
  const auto second = item({});

  EXPECT_NE(first.id(), second.id());
  EXPECT_EQ(first.timesPasted(), 0);
}

TEST(ClipboardItem, OfEmptyDataHasTheDigestOfNothing) {
  EXPECT_EQ(item({}).hashedData(), "d41d8cd98f00b204e9800998ecf8427e");
}

TEST(ClipboardItem, HasTheDigestOfSortedTypeNamesEachFollowedByItsBytes) {
  const auto record = item(of({{"b", Data("2")}, {"a", Data("1")}, {"c", std::nullopt}}));

  EXPECT_EQ(record.hashedData(), payloadDigest(of({{"a1b2c", std::nullopt}})));
  EXPECT_EQ(item(of({{"message digest", Data("")}})).hashedData(), "f96b697d7cb7938d525a2f31aaf161d0");
}

TEST(ClipboardItem, DigestsLargeValuesAsAWhole) {
  const std::string large(1'000'000, 'x');

  EXPECT_EQ(payloadDigest(of({{"t", Data(large)}})), payloadDigest(of({{"t" + large, std::nullopt}})));
}

TEST(ClipboardItem, DiffersFromTheSameContentWithTheMarkerBesideIt) {
  const auto plain = item(of({{NSPasteboardTypeString, Data("a")}}));
  const auto marked = item(of({{NSPasteboardTypeString, Data("a")}, {appMarker, Data("")}}));

  EXPECT_NE(plain.hashedData(), marked.hashedData());
  EXPECT_FALSE(plain == marked);
}

TEST(ClipboardItem, DigestsAnAbsentValueAsAnEmptyOneAndYetDiffers) {
  const auto absent = item(of({{"t", std::nullopt}}));
  const auto empty = item(of({{"t", Data("")}}));

  EXPECT_EQ(absent.hashedData(), empty.hashedData());
  EXPECT_FALSE(absent == empty);
}

TEST(ClipboardItem, EqualsByContentAlone) {
  const auto first = item(of({{"t", Data("a")}}), "one");
  auto second = item(of({{"t", Data("a")}}), "two");
  second.setTimesPasted(9);

  EXPECT_TRUE(first == second);
}

TEST(ClipboardItem, OfASpreadsheetWithTextHasNoImage) {
  const Payload payload = of({{NSPasteboardTypeTIFF, Data("picture")}, {NSPasteboardTypeString, Data("a")}});

  EXPECT_TRUE(item(payload, "com.microsoft.Excel").isExcelTable());
  EXPECT_EQ(imageOf(item(payload, "com.microsoft.Excel")), "none");
  EXPECT_EQ(imageOf(item(payload, "org.example.Other")), "picture");
  EXPECT_EQ(imageOf(item(payload)), "picture");
}

TEST(ClipboardItem, OfASpreadsheetWithoutTextIsAnImage) {
  const Payload payload = of({{NSPasteboardTypeTIFF, Data("picture")}, {NSPasteboardTypeString, std::nullopt}});

  EXPECT_FALSE(item(payload, "com.microsoft.Excel").isExcelTable());
  EXPECT_EQ(imageOf(item(payload, "com.microsoft.Excel")), "picture");
}

TEST(ClipboardItem, TakesTheBestImageThatHasBytes) {
  const auto all = of({{NSPasteboardTypeTIFF, Data("tiff")}, {jpeg, Data("jpeg")}, {NSPasteboardTypePNG, Data("png")}});
  auto withoutPng = all;
  withoutPng.insert_or_assign(std::string(NSPasteboardTypePNG), std::nullopt);

  EXPECT_EQ(imageOf(item(all)), "png");
  EXPECT_EQ(imageOf(item(withoutPng)), "jpeg");
  EXPECT_EQ(imageOf(item(of({{jpeg, std::nullopt}}))), "none");
  EXPECT_EQ(imageOf(item(of({{NSPasteboardTypeString, Data("a")}}))), "none");
}

TEST(ClipboardItem, DoesNotTellAMissingTypeFromOneWithoutBytes) {
  const auto record = item(of({{"t", std::nullopt}}));

  EXPECT_FALSE(record.data("t"));
  EXPECT_FALSE(record.data("missing"));
}

TEST(ClipboardItem, ReadsTheModifiedChangeCountAsASignedDecimal) {
  EXPECT_EQ(changeCountOf("42"), 42);
  EXPECT_EQ(changeCountOf("-42"), -42);
  EXPECT_EQ(changeCountOf("+42"), 42);
  EXPECT_EQ(changeCountOf("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
}

TEST(ClipboardItem, HasNoModifiedChangeCountForAnythingElse) {
  for (const char* text : {"", " 42", "42 ", "4.2", "0x4", "+", "-", "+-4", "9223372036854775808", "4\xFF"}) {
    EXPECT_FALSE(changeCountOf(text)) << text;
  }
  EXPECT_FALSE(changeCountOf(std::string(100'000, '1')));
  EXPECT_FALSE(item(of({{modified, std::nullopt}})).modifiedChangeCount());
  EXPECT_FALSE(item({}).modifiedChangeCount());
}

TEST(ClipboardItem, ShowsTheSizeOfImageThenFileThenText) {
  EXPECT_EQ(item({}).dataSize(), 0);
  EXPECT_EQ(item(of({{NSPasteboardTypeHTML, Data("12345")}})).dataSize(), 0);
  EXPECT_EQ(item(of({{NSPasteboardTypeString, Data("1")}})).dataSize(), 1);
  EXPECT_EQ(item(of({{NSPasteboardTypeString, Data("1")}, {utf16ExternalPlainText, Data("12")}})).dataSize(), 2);
  EXPECT_EQ(item(of({{NSPasteboardTypeFileURL, Data("123")}, {utf16ExternalPlainText, Data("12")}})).dataSize(), 3);
  EXPECT_EQ(item(of({{NSPasteboardTypeFileURL, Data("123")}, {jpeg, Data("1234")}})).dataSize(), 4);
  EXPECT_EQ(item(of({{NSPasteboardTypePNG, std::nullopt}, {NSPasteboardTypeString, Data("1")}})).dataSize(), 1);
}

TEST(ClipboardItem, InheritsPasteCountAndSourceInAMerge) {
  ClipboardItem older(of({{"t", Data("old")}}), "org.example.Old", foundation::Url::fromFilePath("/old"), Date());
  older.setTimesPasted(3);
  ClipboardItem newer(of({{"t", Data("new")}}), "org.example.New", foundation::Url::fromFilePath("/new"),
                      Date(std::chrono::seconds(5)));
  newer.setTimesPasted(1);
  const auto id = newer.id();

  newer.merge(older, ClipboardItem::IncludingData::no);

  EXPECT_EQ(newer.timesPasted(), 4);
  EXPECT_EQ(newer.sourceAppBundleIdentifier(), "org.example.Old");
  EXPECT_EQ(newer.sourceAppBundleURL(), foundation::Url::fromFilePath("/old"));
  EXPECT_EQ(*newer.data("t")->bytes(), "new");
  EXPECT_EQ(newer.id(), id);
  EXPECT_EQ(newer.creationDate(), Date(std::chrono::seconds(5)));
}

TEST(ClipboardItem, TakesOverDataAndDigestInAMergeThatIncludesThem) {
  const auto older = item(of({{"t", Data("old")}}));
  auto newer = item(of({{"t", Data("new")}}));

  newer.merge(older, ClipboardItem::IncludingData::yes);

  EXPECT_TRUE(newer == older);
  EXPECT_EQ(newer.hashedData(), older.hashedData());
}

TEST(ClipboardItem, LosesItsSourceInAMergeWithARecordWithoutOne) {
  ClipboardItem newer({}, "org.example.New", foundation::Url::fromFilePath("/new"), Date());

  newer.merge(item({}), ClipboardItem::IncludingData::no);

  EXPECT_FALSE(newer.sourceAppBundleIdentifier());
  EXPECT_FALSE(newer.sourceAppBundleURL());
}

TEST(ClipboardItem, DoesNotOverflowItsPasteCountInAMerge) {
  auto older = item({});
  older.setTimesPasted(std::numeric_limits<std::int64_t>::max());
  auto newer = item({});
  newer.setTimesPasted(1);

  newer.merge(older, ClipboardItem::IncludingData::no);

  EXPECT_EQ(newer.timesPasted(), std::numeric_limits<std::int64_t>::max());
}

TEST(ClipboardItem, TellsOfAChangedPasteCount) {
  auto record = item({});
  std::int64_t heard = 0;
  const auto subscription = record.onChange([&] { heard = record.timesPasted(); });

  record.setTimesPasted(2);

  EXPECT_EQ(heard, 2);
}

TEST(ClipboardItem, SaysGoodbyeWithoutItsContent) {
  testing::internal::CaptureStdout();

  { const auto record = item(of({{"t", Data("secret")}})); }

  EXPECT_EQ(testing::internal::GetCapturedStdout(), "ClipboardItem: deinit x-quillmonger:ClipboardItem/new\n");
}

}  // namespace

}  // namespace quillmonger
