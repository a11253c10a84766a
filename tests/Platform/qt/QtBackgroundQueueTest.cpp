#include "Platform/qt/QtBackgroundQueue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <numeric>
#include <thread>
#include <vector>

namespace {

TEST(QtBackgroundQueue, WorksOnAnotherThread) {
  platform::QtBackgroundQueue queue;
  std::promise<std::thread::id> ranOn;

  queue.async([&ranOn] { ranOn.set_value(std::this_thread::get_id()); });

  EXPECT_NE(ranOn.get_future().get(), std::this_thread::get_id());
}

TEST(QtBackgroundQueue, PerformsEachIndexOnceBeforeItReturns) {
  platform::QtBackgroundQueue queue;
  std::promise<int> sum;

  queue.async([&queue, &sum] {
    std::vector<int> counts(1000);
    queue.concurrentPerform(counts.size(), [&counts](std::size_t index) { ++counts[index]; });
    const bool isEachOnce = counts == std::vector<int>(1000, 1);
    sum.set_value(isEachOnce ? 1000 : 0);
  });

  EXPECT_EQ(sum.get_future().get(), 1000);
}

TEST(QtBackgroundQueue, PerformsManyAtATimeWithoutWaitingForThemselves) {
  std::atomic<int> count = 0;
  {
    platform::QtBackgroundQueue queue;
    for (int work = 0; work < 50; ++work) {
      queue.async([&queue, &count] { queue.concurrentPerform(4, [&count](std::size_t) { ++count; }); });
    }
  }

  EXPECT_EQ(count, 200);
}

TEST(QtBackgroundQueue, KnowsOfAtLeastOneProcessor) {
  EXPECT_GE(platform::QtBackgroundQueue().activeProcessorCount(), 1U);
}

}  // namespace
