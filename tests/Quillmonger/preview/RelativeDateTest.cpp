#include "Quillmonger/preview/RelativeDate.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/InLocale.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
using quillmonger::relativeDate;
using testsupport::InLocale;

std::string ago(std::chrono::seconds distance) {
  const foundation::Date now = testsupport::VirtualRunLoop::startDate();
  return relativeDate(now - distance, now).text;
}

constexpr std::chrono::hours day{24};

TEST(RelativeDate, NamesTheLargestWholeUnitInFull) {
  const InLocale locale("en_US");

  EXPECT_EQ(ago(0s), "0 seconds ago");
  EXPECT_EQ(ago(1s), "1 second ago");
  EXPECT_EQ(ago(59s), "59 seconds ago");
  EXPECT_EQ(ago(60s), "1 minute ago");
  EXPECT_EQ(ago(3599s), "59 minutes ago");
  EXPECT_EQ(ago(1h), "1 hour ago");
  EXPECT_EQ(ago(day - 1s), "23 hours ago");
  EXPECT_EQ(ago(day), "1 day ago");
  EXPECT_EQ(ago(7 * day), "1 week ago");
  EXPECT_EQ(ago(31 * day), "1 month ago");
  EXPECT_EQ(ago(365 * day), "11 months ago");
  EXPECT_EQ(ago(366 * day), "1 year ago");
  EXPECT_EQ(ago(10 * 366 * day), "10 years ago");
}

TEST(RelativeDate, TellsOfAMomentThatIsStillToCome) {
  const InLocale locale("en_US");

  EXPECT_EQ(ago(-90s), "in 1 minute");
}

TEST(RelativeDate, SpeaksTheUsersLanguage) {
  const InLocale locale("de_DE");

  EXPECT_EQ(ago(2h), "vor 2 Stunden");
}

TEST(RelativeDate, SaysForHowLongItStandsAtMost) {
  const foundation::Date now = testsupport::VirtualRunLoop::startDate();

  EXPECT_EQ(relativeDate(now, now).unit, 1s);
  EXPECT_EQ(relativeDate(now - 90s, now).unit, 60s);
  EXPECT_EQ(relativeDate(now - 2h, now).unit, 3600s);
}

}  // namespace
