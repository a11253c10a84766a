#include "Quillmonger/shell/FallAndBounce.h"

#include <gtest/gtest.h>

namespace {

using quillmonger::fallandbounce::offset;

TEST(FallAndBounce, StartsThirtyPointsOffAndEndsInItsPlace) {
  EXPECT_EQ(offset(0), 30);
  EXPECT_EQ(offset(1), 0);
}

TEST(FallAndBounce, StaysInItsBoundsOutsideTheDuration) {
  EXPECT_EQ(offset(-1), 30);
  EXPECT_EQ(offset(2), 0);
}

// The curve is symmetrical, so that half of the time is half of the way along the keyframes: 30 x (1 - 0.5 / 0.7).
TEST(FallAndBounce, IsHalfWayThroughItsKeyframesAtHalfTime) { EXPECT_NEAR(offset(0.5), 8.5714, 0.001); }

TEST(FallAndBounce, StartsAndEndsSlowly) {
  EXPECT_GT(offset(0.1), 30 * (1 - 0.1 / 0.7));
  EXPECT_LT(offset(0.97), 5 * 0.03 / 0.15);
}

// The first landing, and the top of the rebound: where the curve has gone 0.7 and 0.85 of its way.
TEST(FallAndBounce, LandsAndReboundsByFive) {
  double lowest = 30;
  double highestAfterwards = 0;
  double landing = 0;
  for (int step = 0; step <= 10000; ++step) {
    const double progress = step / 10000.0;
    const double value = offset(progress);
    if (progress < 0.75 && value < lowest) {
      lowest = value;
      landing = progress;
    }
    if (progress > 0.7) highestAfterwards = std::max(highestAfterwards, value);
  }

  EXPECT_NEAR(lowest, 0, 0.01);
  EXPECT_NEAR(landing, 0.6203, 0.001);
  EXPECT_NEAR(highestAfterwards, 5, 0.01);
}

}  // namespace
