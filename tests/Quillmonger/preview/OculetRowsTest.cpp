#include "Quillmonger/preview/OculetRows.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "Quillmonger/detection/OculetManager.h"
#include "tests/support/InLocale.h"
#include "tests/support/InTimeZone.h"

namespace {

using namespace quillmonger;
using testsupport::InLocale;
using testsupport::InTimeZone;

Instant instant(double seconds) { return Instant(std::chrono::duration<double>(seconds)); }

std::vector<OculetRow> dateRowsOf(std::string_view text) {
  const auto results = makeOculetManager()->detect(text);
  return dateRows(dateResult(results)->date);
}

std::vector<OculetRow> colorRowsOf(std::string_view text) {
  const auto results = makeOculetManager()->detect(text);
  return colorRows(*colorResult(results));
}

TEST(DateRows, ReadAUnixTimeInThreeForms) {
  const InLocale locale("en_US");
  const InTimeZone zone("America/New_York");

  EXPECT_EQ(dateRowsOf("1700000000"), (std::vector<OculetRow>{{"unix_string", "1700000000"},
                                                              {"iso8601_string", "2023-11-14T22:13:20Z"},
                                                              {"rfc_2822", "Tue, 14 Nov 2023 17:13:20 -0500"}}));
}

TEST(DateRows, GiveANegativeUnixTimeBeforeNineteenSeventy) {
  const InLocale locale("en_US");
  const InTimeZone zone("UTC");

  EXPECT_EQ(dateRowsOf("1969-07-20T20:17:40Z"),
            (std::vector<OculetRow>{{"unix_string", "-14182940"},
                                    {"iso8601_string", "1969-07-20T20:17:40Z"},
                                    {"rfc_2822", "Sun, 20 Jul 1969 20:17:40 +0000"}}));
}

TEST(DateRows, DropTheFractionOfASecondFromTheUnixTime) {
  EXPECT_EQ(dateRows(instant(1.9))[0].value, "1");
  EXPECT_EQ(dateRows(instant(-1.9))[0].value, "-1");
  EXPECT_EQ(dateRows(instant(1.9))[1].value, "1970-01-01T00:00:01Z");
  EXPECT_EQ(dateRows(instant(-1.9))[1].value, "1969-12-31T23:59:58Z");
}

TEST(DateRows, AreInTheUsersLanguageAndZone) {
  const InLocale locale("de_DE");
  const InTimeZone zone("Asia/Kolkata");

  EXPECT_EQ(dateRows(instant(1'700'000'000))[2].value, "Mi., 15 Nov. 2023 03:43:20 +0530");
}

TEST(DateRows, HaveNoGroupsInTheUnixTimeWhateverTheLanguage) {
  for (const char* name : {"en_US", "de_DE", "fr_FR", "hi_IN"}) {
    const InLocale locale(name);
    EXPECT_EQ(dateRows(instant(1'700'000'000))[0].value, "1700000000") << name;
  }
}

TEST(DateRows, ReachLeapDaysAndFarYears) {
  EXPECT_EQ(dateRows(instant(951'827'696))[1].value, "2000-02-29T12:34:56Z");
  EXPECT_EQ(dateRows(instant(-62'135'596'800))[1].value, "0001-01-01T00:00:00Z");
  EXPECT_EQ(dateRows(instant(-62'135'596'801))[1].value, "0000-12-31T23:59:59Z");
  EXPECT_EQ(dateRows(instant(-62'198'755'200))[1].value, "-0001-01-01T00:00:00Z");
  EXPECT_EQ(dateRows(instant(253'402'300'800))[1].value, "10000-01-01T00:00:00Z");
}

TEST(DateRows, HoldWhatSixtyFourBitsHold) {
  const auto latest = dateRows(instant(0x1.fffffffffffffp62));
  const auto earliest = dateRows(instant(-0x1p63));

  EXPECT_EQ(latest[0].value, "9223372036854774784");
  EXPECT_EQ(earliest[0].value, "-9223372036854775808");
  EXPECT_EQ(latest[1].value.substr(0, 13), "292277026596-");
  EXPECT_EQ(latest[2].value, "");
  EXPECT_EQ(earliest[2].value, "");
}

TEST(DateRowsDeathTest, StopForADateThatNoIntegerHolds) {
  EXPECT_DEATH((void)dateRows(instant(0x1p63)), "further away");
  EXPECT_DEATH((void)dateRows(instant(-0x1.0000000000001p63)), "further away");
  EXPECT_DEATH((void)dateRows(instant(std::numeric_limits<double>::infinity())), "further away");
  EXPECT_DEATH((void)dateRows(instant(std::numeric_limits<double>::quiet_NaN())), "further away");
}

TEST(ColorRows, ReadAColorInThreeForms) {
  EXPECT_EQ(colorRowsOf("#ff8000"), (std::vector<OculetRow>{{"hex_string", "#FF8000"},
                                                            {"rgb_string", "rgb(255, 128, 0)"},
                                                            {"hsl_string", "hsl(30.1, 100%, 50%)"}}));
}

TEST(ColorRows, ShowHueAndPercentagesWithOneDecimalAndNoTrailingZero) {
  EXPECT_EQ(colorRowsOf("hsl(200, 50%, 40%)")[2].value, "hsl(200, 50%, 40%)");
  EXPECT_EQ(colorRowsOf("rgb(12, 34, 56)")[2].value, "hsl(210, 64.7%, 13.3%)");
}

TEST(ColorRowsDeathTest, StopForAColorWithoutRedGreenAndBlue) {
  EXPECT_DEATH((void)colorRows({ColorSpace::genericGray, {0.5, 0, 0}, 1}), "");
}

}  // namespace
