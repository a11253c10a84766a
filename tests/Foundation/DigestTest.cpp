#include "Foundation/Digest.h"

#include <gtest/gtest.h>

namespace {

using foundation::Md5;

TEST(Md5, HasTheDigestOfNothing) { EXPECT_EQ(Md5().finish(), "d41d8cd98f00b204e9800998ecf8427e"); }

TEST(Md5, IsTheSameInPartsAndAsAWhole) {
  Md5 md5;
  md5.append("message ");
  md5.append("");
  md5.append("digest");

  EXPECT_EQ(md5.finish(), "f96b697d7cb7938d525a2f31aaf161d0");
}

TEST(Sha256, HasThePublishedDigest) {
  const auto digest = foundation::sha256("abc");

  EXPECT_EQ(digest.front(), 0xBA);
  EXPECT_EQ(digest[1], 0x78);
  EXPECT_EQ(digest.back(), 0xAD);
}

}  // namespace
