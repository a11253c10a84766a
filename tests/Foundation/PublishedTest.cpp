#include "Foundation/Published.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using foundation::Published;

TEST(Published, TellsEveryAssignmentAfterItWasMadeAlsoOfAnEqualValue) {
  Published<int> published(1);
  std::vector<int> heard;
  const auto subscription = published.subscribe([&](int value) {
    EXPECT_EQ(published.value(), value);
    heard.push_back(value);
  });

  published.set(2);
  published.set(2);

  EXPECT_EQ(heard, (std::vector{2, 2}));
}

TEST(Published, GivesAFollowerThePresentValueAtOnce) {
  Published<int> published(1);
  std::vector<int> heard;

  const auto subscription = published.follow([&](int value) { heard.push_back(value); });
  published.set(2);

  EXPECT_EQ(heard, (std::vector{1, 2}));
}

TEST(Published, DeliversAssignmentsOfAReceiverInTheirOrder) {
  Published<int> published(0);
  std::vector<int> heard;
  const auto first = published.subscribe([&](int value) {
    if (value < 3) published.set(value + 1);
  });
  const auto second = published.subscribe([&](int value) { heard.push_back(value); });

  published.set(1);

  EXPECT_EQ(heard, (std::vector{1, 2, 3}));
}

}  // namespace
