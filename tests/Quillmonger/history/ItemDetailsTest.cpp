#include "Quillmonger/history/ItemDetails.h"

#include <gtest/gtest.h>
#include <unicode/locid.h>

#include <limits>
#include <string>

#include "tests/support/ItemServices.h"

namespace {

using namespace quillmonger;
using testsupport::englishText;

class InLocale final {
 public:
  explicit InLocale(const char* name) {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale(name), status);
  }
  InLocale(const InLocale&) = delete;
  InLocale& operator=(const InLocale&) = delete;
  ~InLocale() {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(m_before, status);
  }

 private:
  icu::Locale m_before = icu::Locale::getDefault();
};

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

TEST(ByteCount, IsWrittenAsTheLocaleWritesNumbers) {
  const InLocale locale("de_DE");

  EXPECT_EQ(byteCountText(1'234'567, englishText), "1,2 MB");
  EXPECT_EQ(pictureSizeText({1920, 1080}), "1.920×1.080");
  EXPECT_EQ(lineCountText(1'200, englishText), "1.200 lines");
}

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
