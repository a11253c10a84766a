#include "Quillmonger/shell/command/NearestWord.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using quillmonger::nearestWord;

constexpr std::array<std::string_view, 4> words{"toggle", "show", "list", "delete"};

TEST(NearestWord, ForgivesAWrongAMissingATooManyAndASwappedLetter) {
  EXPECT_EQ(nearestWord("toggke", words), "toggle");
  EXPECT_EQ(nearestWord("togle", words), "toggle");
  EXPECT_EQ(nearestWord("togggle", words), "toggle");
  EXPECT_EQ(nearestWord("tgogle", words), "toggle");
}

TEST(NearestWord, ForgivesTwoSlipsAndNotThree) {
  EXPECT_EQ(nearestWord("delte", words), "delete");
  EXPECT_EQ(nearestWord("dlte", words), "delete");
  EXPECT_EQ(nearestWord("dlt", words), std::nullopt);
}

TEST(NearestWord, IsTheNearestOfSeveral) {
  constexpr std::array<std::string_view, 2> near{"lost", "list"};

  EXPECT_EQ(nearestWord("listt", near), "list");
}

TEST(NearestWord, IsNotOneWithoutAnyLetterInCommon) {
  constexpr std::array<std::string_view, 1> shortWord{"on"};

  EXPECT_EQ(nearestWord("xx", shortWord), std::nullopt);
  EXPECT_EQ(nearestWord("", words), std::nullopt);
}

}  // namespace
