#include "Platform/freedesktop/UriList.h"

#include <gtest/gtest.h>

namespace platform {

TEST(UriList, TakesTheLinesWhateverEndsThem) {
  const UriList list = UriList::parse("file:///a\r\nfile:///b\nfile:///c\rhttps://d");

  ASSERT_EQ(list.entries.size(), 4U);
  EXPECT_EQ(list.entries[1].url, "file:///b");
  EXPECT_TRUE(list.entries[2].isFile);
  EXPECT_EQ(list.entries[3].url, "https://d");
  EXPECT_FALSE(list.entries[3].isFile);
}

TEST(UriList, LeavesOutCommentsAndWhatIsNoUrl) {
  EXPECT_TRUE(UriList::parse("#file:///a\r\n\r\n/path\r\n:none\r\n1a:b\r\nfile\r\n").entries.empty());
}

TEST(UriList, LeavesOutLinesWithControls) {
  EXPECT_TRUE(UriList::parse(std::string_view("file:///a\0b", 11)).entries.empty());
}

TEST(UriList, ForgivesTheEndOfACString) {
  const UriList list = UriList::parse(std::string_view("file:///a\r\n\0", 12));

  ASSERT_EQ(list.entries.size(), 1U);
  EXPECT_EQ(list.entries[0].url, "file:///a");
}

TEST(UriList, KnowsASchemeInAnyCase) { EXPECT_TRUE(UriList::parse("FiLe:///a").entries.at(0).isFile); }

TEST(UriList, BoundsTheNumberOfEntries) {
  std::string text;
  for (std::size_t index = 0; index < 2 * UriList::limit; ++index)
    text += "a:b\n";

  EXPECT_EQ(UriList::parse(text).entries.size(), UriList::limit);
}

}  // namespace platform
