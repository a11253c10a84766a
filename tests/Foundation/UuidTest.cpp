#include "Foundation/Uuid.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using foundation::Uuid;

TEST(Uuid, ComesBackFromItsText) {
  const Uuid uuid = Uuid::random();

  EXPECT_EQ(Uuid::parse(uuid.toString()), uuid);
}

TEST(Uuid, IsAnotherOneEachTime) {
  std::set<std::string> known;

  for (int i = 0; i < 1000; ++i)
    EXPECT_TRUE(known.insert(Uuid::random().toString()).second);
}

TEST(Uuid, IsMadeWithVersionFour) { EXPECT_EQ(Uuid::random().toString().at(14), '4'); }

TEST(Uuid, IsWrittenInUpperCaseAndReadInEither) {
  const auto uuid = Uuid::parse("0123abcd-89ef-4567-89ab-cdef01234567");

  ASSERT_TRUE(uuid);
  EXPECT_EQ(uuid->toString(), "0123ABCD-89EF-4567-89AB-CDEF01234567");
}

TEST(Uuid, IsNotReadFromAnythingElse) {
  EXPECT_FALSE(Uuid::parse(""));
  EXPECT_FALSE(Uuid::parse("0123abcd-89ef-4567-89ab-cdef0123456"));
  EXPECT_FALSE(Uuid::parse("0123abcd089ef-4567-89ab-cdef01234567"));
  EXPECT_FALSE(Uuid::parse("0123abcg-89ef-4567-89ab-cdef01234567"));
}

}  // namespace
