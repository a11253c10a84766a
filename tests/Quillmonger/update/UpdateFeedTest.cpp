#include "Quillmonger/update/UpdateFeed.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using quillmonger::UpdateFeed;

const std::string key = "11qYAYKxCrfVS/7TyWQHOg7hcvPapiMlrwIaaPcHURo=";

TEST(UpdateFeed, IsAnAddressAndAKey) {
  const auto feed = UpdateFeed::parse("https://example.org/feed.xml\n" + key + "\n");

  ASSERT_TRUE(feed.has_value());
  EXPECT_EQ(feed->address.absoluteString(), "https://example.org/feed.xml");
  EXPECT_EQ(feed->publicKey, key);
}

class BadUpdateFeed : public testing::TestWithParam<std::string> {};

TEST_P(BadUpdateFeed, IsNone) { EXPECT_FALSE(UpdateFeed::parse(GetParam()).has_value()); }

INSTANTIATE_TEST_SUITE_P(Of, BadUpdateFeed,
                         testing::Values("", "\n", "https://example.org/\n", "https://example.org/\n\n",
                                         "http://example.org/\n" + key + "\n", "file:///feed\n" + key + "\n",
                                         "not a url\n" + key + "\n", "https://example.org/\n" + key,
                                         "https://example.org/\n" + key + "\nmore\n"));

}  // namespace
