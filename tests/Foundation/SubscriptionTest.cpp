#include "Foundation/Subscription.h"

#include <gtest/gtest.h>

namespace {

using foundation::Subscription;

TEST(Subscription, EndsOnceWithItsOwner) {
  int ends = 0;
  {
    Subscription subscription([&] { ++ends; });
    subscription.cancel();
  }

  EXPECT_EQ(ends, 1);
}

TEST(Subscription, EndsOnlyWhereItWasMovedTo) {
  int ends = 0;
  Subscription target;
  {
    Subscription source([&] { ++ends; });
    target = std::move(source);
  }
  EXPECT_EQ(ends, 0);
  EXPECT_TRUE(target.isActive());

  target = Subscription();

  EXPECT_EQ(ends, 1);
}

TEST(Subscription, MayBeCancelledFromWithinItsEnd) {
  int ends = 0;
  Subscription subscription;
  subscription = Subscription([&] {
    ++ends;
    subscription.cancel();
  });

  subscription.cancel();

  EXPECT_EQ(ends, 1);
}

}  // namespace
