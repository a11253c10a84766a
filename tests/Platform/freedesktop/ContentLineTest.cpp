#include "Platform/freedesktop/ContentLine.h"

#include <gtest/gtest.h>

namespace platform {

namespace {

ClipboardSnapshot snapshot(const std::string& type, std::size_t size) {
  quillmonger::PasteboardItem item;
  item.representations.push_back({type, foundation::Data(std::string(size, 'x'))});
  return {.types = {type},
          .content = std::make_shared<const quillmonger::PasteboardContent>(
              std::vector<quillmonger::PasteboardItem>{std::move(item)}),
          .frontmost = {}};
}

}  // namespace

TEST(ContentLine, HasNothingAtFirst) {
  const ContentLine line;

  EXPECT_TRUE(line.present().types.empty());
  EXPECT_EQ(line.present().content, nullptr);
}

TEST(ContentLine, TakesTheOldestFirst) {
  ContentLine line;
  line.push(snapshot("a", 1));
  line.push(snapshot("b", 1));
  const auto count = line.changeCount();

  line.advance();
  EXPECT_EQ(line.present().types.front(), "a");
  EXPECT_NE(line.changeCount(), count);
  line.advance();

  EXPECT_EQ(line.present().types.front(), "b");
}

TEST(ContentLine, StaysAsItIsWhenNothingWaits) {
  ContentLine line;
  line.push(snapshot("a", 1));
  line.advance();
  const auto count = line.changeCount();

  line.advance();

  EXPECT_EQ(line.changeCount(), count);
  EXPECT_EQ(line.present().types.front(), "a");
}

TEST(ContentLine, DropsTheOldestWaitingBeyondItsLimit) {
  ContentLine line(100);
  line.push(snapshot("a", 60));
  line.push(snapshot("b", 60));

  line.advance();

  EXPECT_EQ(line.present().types.front(), "b");
}

TEST(ContentLine, KeepsTheLastContentWhateverItsSize) {
  ContentLine line(100);
  line.push(snapshot("a", 1000));

  line.advance();

  EXPECT_EQ(line.present().types.front(), "a");
}

TEST(ContentLine, CountsOnlyWhatStillWaits) {
  ContentLine line(100);
  line.push(snapshot("a", 60));
  line.advance();
  line.push(snapshot("b", 60));

  line.advance();

  EXPECT_EQ(line.present().types.front(), "b");
}

}  // namespace platform
