#include "Quillmonger/history/LargeJpeg.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using quillmonger::isTooLargeJpeg;
using namespace std::string_literals;

constexpr double mega = 1e6;

const std::string start = "\xFF\xD8"s;
const std::string comment = "\xFF\xFE\x00\x06note"s;
const std::string tables = "\xFF\xC4\x00\x08tables"s;

// 16000 by 16000.
std::string frame(char marker, char components) {
  return "\xFF"s + marker + "\x00\x11\x08\x3E\x80\x3E\x80"s + components + "ninebytes"s;
}

std::string scan(char components) { return "\xFF\xDA\x00\x08"s + components + "rest of it"s; }

foundation::Data picture(const std::string& segments) { return foundation::Data(start + segments); }

TEST(LargeJpeg, InOneScanMayHaveManyPixels) {
  const auto single = picture(comment + tables + frame('\xC0', 3) + scan(3));

  EXPECT_FALSE(isTooLargeJpeg(single, 256 * mega));
  EXPECT_TRUE(isTooLargeJpeg(single, 257 * mega));
}

TEST(LargeJpeg, ThatIsProgressiveMustFitIntoTheMemory) {
  const auto progressive = picture(comment + frame('\xC2', 3) + tables + scan(3));

  EXPECT_FALSE(isTooLargeJpeg(progressive, 89 * mega));
  EXPECT_TRUE(isTooLargeJpeg(progressive, 90 * mega));
  EXPECT_FALSE(isTooLargeJpeg(picture(frame('\xC2', 1) + scan(1)), 256 * mega));
  EXPECT_TRUE(isTooLargeJpeg(picture(frame('\xCA', 3) + scan(1)), 90 * mega));
}

TEST(LargeJpeg, WithAScanForEachComponentMustFitIntoTheMemory) {
  EXPECT_TRUE(isTooLargeJpeg(picture(frame('\xC0', 3) + scan(1)), 90 * mega));
}

TEST(LargeJpeg, MayHavePaddingBetweenItsSegments) {
  EXPECT_FALSE(isTooLargeJpeg(picture("\xFF\xFF\xFF"s + frame('\xC1', 3) + "\xFF"s + scan(3)), 256 * mega));
}

TEST(LargeJpeg, CountsAsTheWorstWithoutAClearHead) {
  for (const auto& head : {""s, "no segment"s, scan(3), frame('\xC0', 3), frame('\xC0', 3) + "garbage"s + scan(3),
                           frame('\xC0', 3) + "\xFF\xFE\xFF\xFFmuch too long"s}) {
    EXPECT_TRUE(isTooLargeJpeg(picture(head), 68 * mega)) << head;
    EXPECT_FALSE(isTooLargeJpeg(picture(head), 67 * mega)) << head;
  }
}

TEST(LargeJpeg, CountsAsTheWorstWithSegmentsWithoutEnd) {
  std::string segments;
  for (int count = 0; count < 100'000; ++count)
    segments += "\xFF\xFE\x00\x02"s;

  EXPECT_TRUE(isTooLargeJpeg(picture(segments + frame('\xC0', 3) + scan(3)), 68 * mega));
  EXPECT_TRUE(isTooLargeJpeg(picture(std::string(100'000, '\xFF')), 68 * mega));
}

}  // namespace
