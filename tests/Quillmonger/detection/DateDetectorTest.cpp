#include "Quillmonger/detection/DateDetector.h"

#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include "Quillmonger/detection/DatePatterns.h"
#include "tests/Quillmonger/detection/LocaleFixture.h"

namespace quillmonger {

namespace {

constexpr double noon2024May1 = 1714566645;  // 2024-05-01 12:30:45 UTC

class DateDetectorTest : public LocaleFixture {
 protected:
  // Seconds since 1970.
  static std::optional<double> detect(std::string_view text) {
    const auto result = DateDetector().detect(text);
    if (!result) return std::nullopt;
    return dynamic_cast<const DateDetector::DateResult&>(*result).date.time_since_epoch().count();
  }
};

TEST_F(DateDetectorTest, AHundredCharactersAreReadAndOneMoreIsNot) {
  EXPECT_EQ(detect(std::string(99, '0') + "7"), 7);
  EXPECT_EQ(detect(std::string(100, '0') + "7"), std::nullopt);
  EXPECT_EQ(detect(std::string(90, ' ') + "2024-05-01"), 1714521600);
  EXPECT_EQ(detect(std::string(91, ' ') + "2024-05-01"), std::nullopt);
}

TEST_F(DateDetectorTest, ACharacterIsWhatAUserPerceives) {
  std::string wide;  // each one character of three bytes
  for (int i = 0; i < 90; ++i)
    wide += "\u3000";
  EXPECT_EQ(detect(wide + "2024-05-01"), 1714521600);
  EXPECT_EQ(detect(wide + "\u30002024-05-01"), std::nullopt);

  EXPECT_TRUE(hasAtMostCharacters("e\u0301e\u0301", 2));
  EXPECT_FALSE(hasAtMostCharacters("e\u0301e\u0301", 1));
  EXPECT_TRUE(hasAtMostCharacters("\r\n👩‍👩‍👧", 2));
  EXPECT_FALSE(hasAtMostCharacters("\r\n👩‍👩‍👧a", 2));
  EXPECT_TRUE(hasAtMostCharacters("\r\na\r\n\n", 4));
  EXPECT_FALSE(hasAtMostCharacters("\r\na\n\r\r", 4));
}

TEST_F(DateDetectorTest, TheEmptyTextIsNoDate) { EXPECT_EQ(detect(""), std::nullopt); }

TEST_F(DateDetectorTest, TheSizeOfAnIntegerSaysItsUnit) {
  EXPECT_EQ(detect("1700000000"), 1700000000);
  EXPECT_EQ(detect("1700000000000"), 1700000000);
  EXPECT_EQ(detect("1700000000000000"), 1700000000);
  EXPECT_EQ(detect("1700000000000000000"), 1700000000);
}

TEST_F(DateDetectorTest, TheUnitChangesAfterTheLargestNumberOfEach) {
  EXPECT_EQ(detect("9999999999"), 9999999999);
  EXPECT_EQ(detect("10000000000"), 10000000);  // in 1970
  EXPECT_EQ(detect("9999999999999"), 9999999999);
  EXPECT_EQ(detect("10000000000000"), 10000000);
  EXPECT_EQ(detect("9999999999999999"), 9999999999);
  EXPECT_EQ(detect("10000000000000000"), 10000000);
  EXPECT_EQ(detect("9223372036854775807"), 9223372036);
}

TEST_F(DateDetectorTest, AFractionOfASecondIsDropped) {
  EXPECT_EQ(detect("1700000000123"), 1700000000);
  EXPECT_EQ(detect("1700000000999999"), 1700000000);
  EXPECT_EQ(detect("1700000000999999999"), 1700000000);
}

TEST_F(DateDetectorTest, AnySmallIntegerIsATimeIn1970) {
  EXPECT_EQ(detect("0"), 0);
  EXPECT_EQ(detect("7"), 7);
  EXPECT_EQ(detect("2024"), 2024);
  EXPECT_EQ(detect("0012"), 12);
}

TEST_F(DateDetectorTest, AnIntegerMayHaveASign) {
  EXPECT_EQ(detect("-1"), -1);
  EXPECT_EQ(detect("+5"), 5);
  EXPECT_EQ(detect("-10000000000000"), -10000000000000);
  EXPECT_EQ(detect("-9223372036854775808"), -std::pow(2.0, 63));
  for (const auto* const text : {"+", "-", "+-5", "-+5", "--5", "++5", " 5", "5 ", "5\n"})
    EXPECT_EQ(detect(text), std::nullopt) << text;
}

TEST_F(DateDetectorTest, WhatIsNoWholeIntegerIsNoUnixTime) {
  for (const auto* const text : {"12a", "99999999999999999999", "-9223372036854775809", "1e5", "1.5", "0x10", "\u0661"})
    EXPECT_EQ(detect(text), std::nullopt) << text;
}

TEST_F(DateDetectorTest, TheIsoFormIsUtcUnlessItHasAnOffset) {
  setTimeZone("America/New_York");
  EXPECT_EQ(detect("2024-05-01T12:30:45Z"), noon2024May1);
  EXPECT_EQ(detect("2024-05-01T14:30:45+02:00"), noon2024May1);
  EXPECT_EQ(detect("2024-05-01T14:30:45+0200"), noon2024May1);
  EXPECT_EQ(detect("2024-05-01T07:00:45-05:30"), noon2024May1);
  EXPECT_EQ(detect("1969-12-31T23:59:59Z"), -1);
  EXPECT_EQ(detect("2024-02-29T00:00:00Z"), 1709164800);
}

TEST_F(DateDetectorTest, AFormBesideThePatternsIsNoDate) {
  for (const auto* const text :
       {"2024-05-01T12:30:45", "2024-05-01 12:30:45Z", "2024-05-01t12:30:45Z", "2024-05-01T12:30Z",
        "2024-05-01T12:30:45.123Z", "2024-5-1T12:30:45Z", "20240501T123045Z", "2024-05-01T12:30:45Z ",
        "2024-05-01T12:30:45ZZ", "2024-05-01T", "2024-05-01T12:30:45+02:0a", "2024-5-1", "1/2/2024", "01.05.2024"}) {
    EXPECT_EQ(detect(text), std::nullopt) << text;
  }
}

TEST_F(DateDetectorTest, ThePatternReadsOffsetsThatTheIsoFormDoesNotHave) {
  EXPECT_EQ(detect("2024-05-01T13:30:45+1"), noon2024May1);
  EXPECT_EQ(detect("2024-05-01T13:30:45GMT+1"), noon2024May1);
}

TEST_F(DateDetectorTest, AMomentThatDoesNotExistIsNoDate) {
  for (const auto* const text :
       {"2024-02-30T00:00:00Z", "2023-02-29T00:00:00Z", "2024-13-01T00:00:00Z", "2024-00-01T00:00:00Z",
        "2024-01-00T00:00:00Z", "2024-05-01T24:00:00Z", "2024-05-01T12:60:00Z", "2024-05-01T23:59:60Z",
        "2024-05-01T12:30:45+24:00", "2024-05-01T12:30:45+01:60", "2024-02-30", "2024-04-31", "30/02/2024",
        "02/30/2024", "13/13/2024", "00/01/2024"}) {
    EXPECT_EQ(detect(text), std::nullopt) << text;
  }
}

TEST_F(DateDetectorTest, ADateWithoutATimeIsMidnightInTheDefaultTimeZone) {
  EXPECT_EQ(detect("2024-05-01"), 1714521600);
  EXPECT_EQ(detect("05/31/2024"), 1717113600);
  setTimeZone("Asia/Kolkata");
  EXPECT_EQ(detect("2024-05-01"), 1714521600 - 19800);
  setTimeZone("America/New_York");
  EXPECT_EQ(detect("2024-05-01"), 1714521600 + 14400);
  EXPECT_EQ(detect("2024-01-01"), 1704067200 + 18000);
}

TEST_F(DateDetectorTest, ADateBeforeTheEpochIsNegative) { EXPECT_EQ(detect("1969-12-31"), -86400); }

TEST_F(DateDetectorTest, TheLongFormNamesTheDayAndTheMonth) {
  EXPECT_EQ(detect("Wednesday, 01-May-24 12:30:45 +0000"), noon2024May1);
  EXPECT_EQ(detect("Wednesday, 01-May-24 14:30:45 +0200"), noon2024May1);
  EXPECT_EQ(detect("Wednesday, 01-05-24 12:30:45 +0000"), std::nullopt);
}

TEST_F(DateDetectorTest, TheWholeTextIsRead) {
  EXPECT_EQ(detect("2024-05-01 "), std::nullopt);
  EXPECT_EQ(detect("2024-05-01."), std::nullopt);
  EXPECT_EQ(detect("2024-05-01 12:30"), std::nullopt);
  EXPECT_EQ(detect("on 2024-05-01"), std::nullopt);
}

TEST_F(DateDetectorTest, ProseIsNoDate) {
  EXPECT_EQ(detect("The meeting on 12 May 2024 at 10:30 is moved to room 45, please come early."), std::nullopt);
  EXPECT_EQ(detect("Wed, 01 May 2024 12:30:45"), std::nullopt);
  EXPECT_EQ(detect("550e8400-e29b-41d4-a716-446655440000"), std::nullopt);
}

TEST_F(DateDetectorTest, AnEndlessCharacterIsNoDate) {
  std::string text = "2024-05-01";
  for (int i = 0; i < 1 << 20; ++i)
    text += "\u0301";
  EXPECT_EQ(detect(text), std::nullopt);
}

}  // namespace

}  // namespace quillmonger
