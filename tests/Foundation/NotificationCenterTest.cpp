#include "Foundation/NotificationCenter.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using foundation::Notification;
using foundation::NotificationCenter;
using foundation::Subscription;

TEST(NotificationCenter, TellsTheObserversOfTheNameAlone) {
  NotificationCenter center;
  std::string heard;
  const int object = 0;
  const auto a = center.observe("A", [&](const Notification& notification) {
    heard += notification.name;
    EXPECT_EQ(notification.object, &object);
  });
  const auto b = center.observe("B", [&](const Notification&) { heard += "wrong"; });

  center.post("A", &object);
  center.post("C");

  EXPECT_EQ(heard, "A");
}

TEST(NotificationCenter, TellsNobodyWhoLeft) {
  NotificationCenter center;
  int heard = 0;
  Subscription observer = center.observe("A", [&](const Notification&) { ++heard; });

  observer.cancel();
  center.post("A");

  EXPECT_EQ(heard, 0);
}

TEST(NotificationCenter, LetsAnObserverPostAndObserve) {
  NotificationCenter center;
  std::string heard;
  Subscription late;
  const auto first = center.observe("A", [&](const Notification&) {
    late = center.observe("B", [&](const Notification&) { heard += "b"; });
    center.post("B");
    heard += "a";
  });

  center.post("A");

  EXPECT_EQ(heard, "ba");
}

}  // namespace
