#include "Foundation/BackgroundThread.h"

#include <gtest/gtest.h>
#include <sched.h>

#include <thread>

namespace {

TEST(BackgroundThread, WaitsForItsTurnAndLeavesTheOtherThreadsAsTheyAre) {
  int policy = -1;
  std::thread([&policy] {
    foundation::becomeBackgroundThread();
    policy = sched_getscheduler(0);
  }).join();

  EXPECT_EQ(policy, SCHED_BATCH);
  EXPECT_EQ(sched_getscheduler(0), SCHED_OTHER);
}

}  // namespace
