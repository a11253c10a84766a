#include "Platform/qt/QtRunLoop.h"

#include <gtest/gtest.h>

#include <QTest>
#include <thread>
#include <vector>

namespace {

using foundation::Seconds;

class QtRunLoop : public testing::Test {
 protected:
  platform::QtRunLoop m_runLoop;
};

TEST_F(QtRunLoop, RunsWhatWasPostedInOrderInALaterTurn) {
  std::vector<int> order;
  m_runLoop.post([&order] { order.push_back(1); });
  m_runLoop.post([&order] { order.push_back(2); });
  EXPECT_TRUE(order.empty());

  EXPECT_TRUE(QTest::qWaitFor([&order] { return order.size() == 2; }));

  EXPECT_EQ(order, (std::vector{1, 2}));
}

TEST_F(QtRunLoop, TakesPostsFromAnyThreadAndRunsThemOnItsOwn) {
  std::thread::id ranOn;
  std::thread other([this, &ranOn] { m_runLoop.post([&ranOn] { ranOn = std::this_thread::get_id(); }); });
  other.join();

  EXPECT_TRUE(QTest::qWaitFor([&ranOn] { return ranOn == std::this_thread::get_id(); }));
}

TEST_F(QtRunLoop, LetsATaskPostAnother) {
  int depth = 0;
  std::function<void()> task = [this, &depth, &task] {
    if (++depth < 3) m_runLoop.post(task);
  };
  m_runLoop.post(task);

  EXPECT_TRUE(QTest::qWaitFor([&depth] { return depth == 3; }));
}

TEST_F(QtRunLoop, RunsADelayedTaskOnce) {
  int count = 0;
  bool isLater = false;
  const auto first = m_runLoop.after(Seconds(0.001), [&count] { ++count; });
  const auto second = m_runLoop.after(Seconds(0.05), [&isLater] { isLater = true; });

  EXPECT_TRUE(QTest::qWaitFor([&isLater] { return isLater; }));

  EXPECT_EQ(count, 1);
}

TEST_F(QtRunLoop, WaitsForAMonthWithoutRunningAtOnce) {
  static int warningCount = 0;
  const auto earlier =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++warningCount; });
  bool hasRun = false;
  bool isLater = false;
  const auto month = m_runLoop.after(Seconds(2'629'746), [&hasRun] { hasRun = true; });
  const auto later = m_runLoop.after(Seconds(0.05), [&isLater] { isLater = true; });

  EXPECT_TRUE(QTest::qWaitFor([&isLater] { return isLater; }));

  qInstallMessageHandler(earlier);
  EXPECT_FALSE(hasRun);
  EXPECT_EQ(warningCount, 0) << "the toolkit tells of a wait that it refuses";
}

TEST_F(QtRunLoop, RunsNothingOfAHoldThatIsGone) {
  bool hasRun = false;
  bool isLater = false;
  {
    const auto dropped = m_runLoop.after(Seconds(0.001), [&hasRun] { hasRun = true; });
  }
  const auto second = m_runLoop.after(Seconds(0.02), [&isLater] { isLater = true; });

  EXPECT_TRUE(QTest::qWaitFor([&isLater] { return isLater; }));

  EXPECT_FALSE(hasRun);
}

TEST_F(QtRunLoop, RepeatsUntilTheTaskEndsItsOwnHold) {
  int count = 0;
  bool isLater = false;
  foundation::Subscription repeating;
  foundation::Subscription later;
  repeating = m_runLoop.every(Seconds(0.002), [&, this] {
    if (++count < 3) return;
    repeating.cancel();
    later = m_runLoop.after(Seconds(0.02), [&isLater] { isLater = true; });
  });

  EXPECT_TRUE(QTest::qWaitFor([&isLater] { return isLater; }));

  EXPECT_EQ(count, 3);
}

}  // namespace
