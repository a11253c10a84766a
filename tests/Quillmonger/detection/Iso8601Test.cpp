#include "Quillmonger/detection/Iso8601.h"

#include <gtest/gtest.h>

namespace quillmonger {

namespace {

constexpr std::chrono::sys_seconds moment{std::chrono::seconds(1714566645)};  // 2024-05-01 12:30:45 UTC

TEST(Iso8601Test, ATimeIsUtcUnlessItHasAnOffset) {
  EXPECT_EQ(readIso8601("2024-05-01T12:30:45Z"), moment);
  EXPECT_EQ(readIso8601("2024-05-01T12:30:45+00:00"), moment);
  EXPECT_EQ(readIso8601("2024-05-01T14:30:45+02:00"), moment);
  EXPECT_EQ(readIso8601("2024-05-02T12:29:45+2359"), moment);
  EXPECT_EQ(readIso8601("2024-05-01T07:00:45-0530"), moment);
}

TEST(Iso8601Test, EveryDigitStandsAndNothingElse) {
  for (const auto* const text : {"",
                                 "2024-05-01",
                                 "2024-05-01T12:30:45",
                                 "2024-05-01 12:30:45Z",
                                 "2024-05-01t12:30:45Z",
                                 "2024-05-01T12:30:45z",
                                 "2024-05-01T12:30Z",
                                 "2024-05-01T12:30:45.1Z",
                                 "2024-5-1T12:30:45Z",
                                 "20240501T123045Z",
                                 "2024-05-01T12:30:45Z ",
                                 " 2024-05-01T12:30:45Z",
                                 "2024-05-01T12:30:45ZZ",
                                 "2024-05-01T12:30:45+1",
                                 "2024-05-01T12:30:45+01",
                                 "2024-05-01T12:30:45+01:0",
                                 "2024-05-01T12:30:45+0a:00",
                                 "2024-05-01T12:30:45 +01:00",
                                 "-024-05-01T12:30:45Z",
                                 "12024-05-01T12:30:45Z",
                                 "2024-05-01T12:30:4\u0665Z"}) {
    EXPECT_EQ(readIso8601(text), std::nullopt) << text;
  }
}

TEST(Iso8601Test, DaysTimesAndOffsetsExist) {
  EXPECT_TRUE(readIso8601("2024-02-29T23:59:59Z"));
  EXPECT_TRUE(readIso8601("2000-02-29T00:00:00Z"));
  for (const auto* const text :
       {"2023-02-29T00:00:00Z", "1900-02-29T00:00:00Z", "2024-02-30T00:00:00Z", "2024-00-01T00:00:00Z",
        "2024-13-01T00:00:00Z", "2024-01-00T00:00:00Z", "2024-01-32T00:00:00Z", "2024-01-01T24:00:00Z",
        "2024-01-01T00:60:00Z", "2024-01-01T00:00:60Z", "2024-01-01T00:00:00+24:00", "2024-01-01T00:00:00+00:60"}) {
    EXPECT_EQ(readIso8601(text), std::nullopt) << text;
  }
}

TEST(Iso8601Test, TheCalendarIsTheGregorianForAllTimes) {
  EXPECT_EQ(readIso8601("0001-01-01T00:00:00Z"), std::chrono::sys_seconds(std::chrono::seconds(-62135596800)));
  EXPECT_EQ(readIso8601("1582-10-10T00:00:00Z"), std::chrono::sys_seconds(std::chrono::seconds(-12219724800)));
  EXPECT_EQ(readIso8601("9999-12-31T23:59:59Z"), std::chrono::sys_seconds(std::chrono::seconds(253402300799)));
}

}  // namespace

}  // namespace quillmonger
