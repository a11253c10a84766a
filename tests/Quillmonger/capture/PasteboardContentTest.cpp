#include "Quillmonger/capture/PasteboardContent.h"

#include <gtest/gtest.h>

#include "Quillmonger/capture/PasteboardTypes.h"

namespace quillmonger {

namespace {

using foundation::Data;

PasteboardItem itemOf(std::vector<PasteboardItem::Representation> representations) {
  return {std::move(representations)};
}
PasteboardItem textItem(std::optional<Data> text) {
  return itemOf({{std::string(pasteboardtype::NSPasteboardTypeString), std::move(text)}, {"public.html", Data("h")}});
}

TEST(PasteboardContent, UnitesTheTypesOfAllItemsAndTheLaterValueWins) {
  const PasteboardContent content(
      {itemOf({{"a", Data("1")}, {"b", Data("2")}}), itemOf({{"b", Data("3")}, {"c", Data("4")}})});

  EXPECT_EQ(content.payload(), (Payload{{"a", Data("1")}, {"b", Data("3")}, {"c", Data("4")}}));
  EXPECT_EQ(content.digest(), payloadDigest(content.payload()));
}

TEST(PasteboardContent, LetsALaterAbsentValueWin) {
  const PasteboardContent content({itemOf({{"a", Data("1")}}), itemOf({{"a", std::nullopt}})});

  EXPECT_EQ(content.payload(), (Payload{{"a", std::nullopt}}));
}

TEST(PasteboardContent, LeavesAnItemWithBlankTextOutWhole) {
  const PasteboardContent content({textItem(Data(" \n\t")), itemOf({{"public.png", Data("picture")}})});

  EXPECT_EQ(content.payload(), (Payload{{"public.png", Data("picture")}}));
}

TEST(PasteboardContent, LeavesAnItemWithUnreadableTextOutWhole) {
  EXPECT_TRUE(PasteboardContent({textItem(Data("\xFF"))}).payload().empty());
  EXPECT_TRUE(PasteboardContent({textItem(std::nullopt)}).payload().empty());
}

TEST(PasteboardContent, KeepsTextWithSpaceAroundItAsItIs) {
  const PasteboardContent content({textItem(Data(" a\n"))});

  EXPECT_EQ(content.payload().at(std::string(pasteboardtype::NSPasteboardTypeString)), Data(" a\n"));
}

TEST(PasteboardContent, IsEmptyWithoutASingleByte) {
  EXPECT_TRUE(PasteboardContent({}).isEmpty());
  EXPECT_TRUE(PasteboardContent({itemOf({{"a", Data("")}, {"b", std::nullopt}})}).isEmpty());
  EXPECT_FALSE(PasteboardContent({itemOf({{"a", Data("")}, {"b", Data("1")}})}).isEmpty());
}

TEST(PasteboardItem, TellsItsTypesInTheOwnersOrder) {
  const auto item = itemOf({{"b", Data("1")}, {"a", std::nullopt}});

  EXPECT_EQ(item.types(), (std::vector<std::string>{"b", "a"}));
  EXPECT_EQ(item.dataForType("b"), Data("1"));
  EXPECT_FALSE(item.dataForType("a"));
  EXPECT_FALSE(item.dataForType("c"));
}

}  // namespace

}  // namespace quillmonger
