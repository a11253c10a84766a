#include "Foundation/Url.h"

#include <gtest/gtest.h>

namespace {

using foundation::Url;

TEST(Url, IsSplitIntoItsParts) {
  const auto url = Url::parse("HTTPS://user@example.org:8080/a?b=c#d");

  ASSERT_TRUE(url);
  EXPECT_EQ(url->scheme(), "https");
  EXPECT_EQ(url->host(), "example.org");
  EXPECT_EQ(url->absoluteString(), "HTTPS://user@example.org:8080/a?b=c#d");
  EXPECT_FALSE(url->filePath());
}

TEST(Url, KeepsTheBracketsOfANumericHost) { EXPECT_EQ(Url::parse("http://[::1]:80/")->host(), "[::1]"); }

TEST(Url, NeedsNoScheme) {
  const auto url = Url::parse("a/b");

  ASSERT_TRUE(url);
  EXPECT_FALSE(url->scheme());
  EXPECT_FALSE(url->host());
}

TEST(Url, IsNotReadFromOtherText) {
  for (const char* text : {"", "a b", "http://\xC3\xA9", "%zz", "a%4", "\"", "1a:b", "a\n"}) {
    EXPECT_FALSE(Url::parse(text)) << text;
  }
}

TEST(Url, NamesAFileAndGivesItsPathBack) {
  const std::string path = "/tmp/a b/\xC3\xA9%\xFF.txt";

  const Url url = Url::fromFilePath(path);

  EXPECT_EQ(url.absoluteString(), "file:///tmp/a%20b/%C3%A9%25%FF.txt");
  EXPECT_EQ(url.filePath(), path);
  EXPECT_EQ(Url::parse(url.absoluteString()), url);
}

TEST(Url, HasAFilePathOnlyOnThisMachine) {
  EXPECT_EQ(Url::parse("file://localhost/a")->filePath(), "/a");
  EXPECT_FALSE(Url::parse("file://elsewhere.example/a")->filePath());
}

TEST(Url, HasNoFilePathWithANul) { EXPECT_FALSE(Url::parse("file:///a%00b")->filePath()); }

TEST(PercentEscapes, AreAddedAndRemoved) {
  EXPECT_EQ(foundation::addingPercentEscapes("a b/c", "/"), "a%20b/c");
  EXPECT_EQ(foundation::addingPercentEscapes("/"), "%2F");
  EXPECT_EQ(foundation::removingPercentEscapes("a%20b%2f"), "a b/");
  EXPECT_FALSE(foundation::removingPercentEscapes("%2"));
}

}  // namespace
