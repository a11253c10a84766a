#include "Foundation/Stream.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using foundation::Stream;
using foundation::Subscription;

TEST(Stream, DeliversInTheOrderOfSubscription) {
  Stream<int> stream;
  std::string heard;
  const auto first = stream.subscribe([&](int value) { heard += "a" + std::to_string(value); });
  const auto second = stream.subscribe([&](int value) { heard += "b" + std::to_string(value); });

  stream.send(1);
  stream.send(2);

  EXPECT_EQ(heard, "a1b1a2b2");
}

TEST(Stream, DeliversAValueSentByAReceiverAfterThePresentOneReachedAll) {
  Stream<int> stream;
  std::string heard;
  const auto first = stream.subscribe([&](int value) {
    heard += "a" + std::to_string(value);
    if (value == 1) stream.send(2);
  });
  const auto second = stream.subscribe([&](int value) { heard += "b" + std::to_string(value); });

  stream.send(1);

  EXPECT_EQ(heard, "a1b1a2b2");
}

TEST(Stream, DeliversNothingMoreToOneThatUnsubscribesDuringADelivery) {
  Stream<int> stream;
  int heard = 0;
  Subscription second;
  const auto first = stream.subscribe([&](int) { second.cancel(); });
  second = stream.subscribe([&](int) { ++heard; });

  stream.send(1);

  EXPECT_EQ(heard, 0);
}

TEST(Stream, LetsAReceiverUnsubscribeItself) {
  Stream<int> stream;
  int heard = 0;
  Subscription own = stream.subscribe([&](int) {
    ++heard;
    own.cancel();
  });

  stream.send(1);
  stream.send(2);

  EXPECT_EQ(heard, 1);
}

TEST(Stream, DeliversTheNextValueFirstToOneThatSubscribesDuringADelivery) {
  Stream<int> stream;
  std::string heard;
  Subscription late;
  const auto first = stream.subscribe([&](int) {
    if (!late.isActive()) late = stream.subscribe([&](int value) { heard += std::to_string(value); });
  });

  stream.send(1);
  stream.send(2);

  EXPECT_EQ(heard, "2");
}

TEST(Stream, DeliversNothingMoreOnceAReceiverDestroysIt) {
  auto stream = std::make_unique<Stream<int>>();
  int heard = 0;
  const auto first = stream->subscribe([&](int) {
    stream->send(2);
    stream.reset();
  });
  const auto second = stream->subscribe([&](int) { ++heard; });

  stream->send(1);

  EXPECT_EQ(heard, 0);
}

TEST(Stream, MayGoBeforeItsSubscriptions) {
  Subscription subscription;
  {
    Stream<int> stream;
    subscription = stream.subscribe([](int) {});
  }

  subscription.cancel();

  EXPECT_FALSE(subscription.isActive());
}

}  // namespace
