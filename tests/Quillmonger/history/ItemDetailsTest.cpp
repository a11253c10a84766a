#include "Quillmonger/history/ItemDetails.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "tests/support/InLocale.h"
#include "tests/support/ItemServices.h"

namespace {

using namespace quillmonger;
using testsupport::englishText;
using testsupport::InLocale;

TEST(ByteCount, IsCountedInThousandsWithMoreDecimalsTheLargerItIs) {
  const InLocale locale("en_US");

  EXPECT_EQ(byteCountText(0, englishText), "Zero KB");
  EXPECT_EQ(byteCountText(1, englishText), "1 byte");
  EXPECT_EQ(byteCountText(999, englishText), "999 bytes");
  EXPECT_EQ(byteCountText(1'000, englishText), "1 KB");
  EXPECT_EQ(byteCountText(1'499, englishText), "1 KB");
  EXPECT_EQ(byteCountText(123'500, englishText), "124 KB");
  EXPECT_EQ(byteCountText(1'000'000, englishText), "1 MB");
  EXPECT_EQ(byteCountText(1'234'567, englishText), "1.2 MB");
  EXPECT_EQ(byteCountText(1'234'567'890, englishText), "1.23 GB");
}

TEST(ByteCount, GoesToTheNextUnitWhenItRoundsUpToIt) {
  const InLocale locale("en_US");

  EXPECT_EQ(byteCountText(999'499, englishText), "999 KB");
  EXPECT_EQ(byteCountText(999'500, englishText), "1 MB");
  EXPECT_EQ(byteCountText(999'950'000, englishText), "1 GB");
}

struct Numbers {
  const char* locale;
  const char* megabytes;
  const char* picture;
  const char* lines;
};
class ItemDetails : public testing::TestWithParam<Numbers> {};

TEST_P(ItemDetails, AreWrittenAsTheLocaleWritesNumbers) {
  const InLocale locale(GetParam().locale);

  EXPECT_EQ(byteCountText(1'234'567, englishText), GetParam().megabytes);
  EXPECT_EQ(pictureSizeText({1920, 1080}), GetParam().picture);
  EXPECT_EQ(lineCountText(1'200, englishText), GetParam().lines);
  EXPECT_EQ(byteCountText(0, englishText), "Zero KB");
}

INSTANTIATE_TEST_SUITE_P(Locales, ItemDetails,
                         testing::Values(Numbers{"en_US", "1.2 MB", "1,920×1,080", "1,200 lines"},
                                         Numbers{"de_DE", "1,2 MB", "1.920×1.080", "1.200 lines"},
                                         Numbers{"tr_TR", "1,2 MB", "1.920×1.080", "1.200 lines"},
                                         Numbers{"el_GR", "1,2 MB", "1.920×1.080", "1.200 lines"},
                                         Numbers{"ar_EG", "١٫٢ MB", "١٬٩٢٠×١٬٠٨٠", "١٬٢٠٠ lines"},
                                         Numbers{"ja_JP", "1.2 MB", "1,920×1,080", "1,200 lines"}),
                         [](const auto& numbers) { return std::string(numbers.param.locale); });

TEST(ByteCount, HasAPlaceForTheLargestNumber) {
  const InLocale locale("en_US");

  const auto text = byteCountText(std::numeric_limits<std::int64_t>::max(), [](std::string_view key) {
    return key == "byte_count_petabytes" ? std::string("{0} PB") : std::string(key);
  });

  EXPECT_EQ(text, "9,223.37 PB");
}

TEST(LineCount, CountsNoLineInAnEmptyTextAndNoneForAClosingLineEnd) {
  EXPECT_EQ(lineCount(""), 0U);
  EXPECT_EQ(lineCount("a"), 1U);
  EXPECT_EQ(lineCount("a\n"), 1U);
  EXPECT_EQ(lineCount("a\nb"), 2U);
  EXPECT_EQ(lineCount("\n"), 1U);
  EXPECT_EQ(lineCount("a\n\nb\n"), 3U);
}

TEST(LineCount, KnowsTheLineEndsOfEverySystem) { EXPECT_EQ(lineCount("a\r\nb\rc\u0085d\u2028e\u2029f"), 6U); }

}  // namespace
