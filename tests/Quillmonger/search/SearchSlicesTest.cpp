#include "Quillmonger/search/SearchSlices.h"

#include <gtest/gtest.h>

namespace {

using quillmonger::SearchSlices;

TEST(SearchSlices, GivesAShortListToOneWorker) {
  const SearchSlices slices(499, 8);

  EXPECT_EQ(slices.count(), 1U);
  EXPECT_EQ(slices.start(0), 0U);
  EXPECT_EQ(slices.end(0), 499U);
}

TEST(SearchSlices, SharesALongListBetweenTwoWorkers) {
  const SearchSlices slices(500, 8);

  EXPECT_EQ(slices.count(), 2U);
  EXPECT_EQ(slices.end(0), 250U);
  EXPECT_EQ(slices.start(1), 250U);
  EXPECT_EQ(slices.end(1), 500U);
}

TEST(SearchSlices, GivesTheRemainderToTheLastWorker) {
  const SearchSlices slices(501, 2);

  EXPECT_EQ(slices.end(0), 250U);
  EXPECT_EQ(slices.start(1), 250U);
  EXPECT_EQ(slices.end(1), 501U);
}

TEST(SearchSlices, HasOneWorkerForOneProcessor) { EXPECT_EQ(SearchSlices(1000, 1).count(), 1U); }

TEST(SearchSlicesDeathTest, StopsTheProcessForALongListWithoutAProcessor) {
  EXPECT_EQ(SearchSlices(499, 0).count(), 1U);
  EXPECT_DEATH(SearchSlices(500, 0), "A search needs a processor.");
}

TEST(SearchSlices, HasOneEmptySliceForAnEmptyList) {
  EXPECT_EQ(SearchSlices(0, 8).count(), 1U);
  EXPECT_EQ(SearchSlices(0, 8).end(0), 0U);
}

}  // namespace
