#include "Sauce/InputSource.h"

#include <gtest/gtest.h>

#include "Foundation/Uuid.h"

namespace {

using sauce::InputSource;

InputSource source(const char* identifier, std::optional<std::string> modeID = std::nullopt) {
  InputSource result(identifier);
  result.modeID = std::move(modeID);
  return result;
}

std::size_t hash(const InputSource& source) { return std::hash<InputSource>{}(source); }

TEST(InputSource, IsEqualToOneWithTheSameIdentifierAndMode) {
  EXPECT_EQ(source("jp", "Roman"), source("jp", "Roman"));
  EXPECT_EQ(hash(source("jp", "Roman")), hash(source("jp", "Roman")));
}

TEST(InputSource, CountsTwoAbsentModesAsEqual) {
  EXPECT_EQ(source("us"), source("us"));
  EXPECT_EQ(hash(source("us")), hash(source("us")));
}

TEST(InputSource, DiffersFromOneWithAnotherIdentifier) { EXPECT_NE(source("us"), source("de")); }

TEST(InputSource, DiffersFromOneWithAnotherMode) {
  EXPECT_NE(source("jp", "Roman"), source("jp", "Kana"));
  EXPECT_NE(source("jp", "Roman"), source("jp"));
  EXPECT_NE(source("jp", ""), source("jp"));
}

TEST(InputSource, IsComparedByNothingElse) {
  InputSource selected = source("us");
  selected.isSelected = true;
  selected.isASCIICapable = true;
  selected.localizedName = "English (US)";

  EXPECT_EQ(selected, source("us"));
  EXPECT_EQ(hash(selected), hash(source("us")));
}

TEST(InputSource, HasANewUniqueIdentifierWhenTheSystemGivesNone) {
  const InputSource first;
  const InputSource second;

  EXPECT_TRUE(foundation::Uuid::parse(first.id));
  EXPECT_NE(first, second);
}

}  // namespace
