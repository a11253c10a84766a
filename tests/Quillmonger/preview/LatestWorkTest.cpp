#include "Quillmonger/preview/LatestWork.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using quillmonger::LatestWork;

class LatestWorkTest : public testing::Test {
 protected:
  LatestWork::Work named(const std::string& name) {
    return [this, name]() -> LatestWork::Finish {
      done.push_back(name);
      return [this, name] { used.push_back(name); };
    };
  }
  void runAll() {
    for (int round = 0; round < 5; ++round) {
      queue.run();
      runLoop.runPosted();
    }
  }

  testsupport::InlineBackgroundQueue queue;
  testsupport::VirtualRunLoop runLoop;
  std::unique_ptr<LatestWork> work = std::make_unique<LatestWork>(queue, runLoop);
  std::vector<std::string> done;
  std::vector<std::string> used;
};

TEST_F(LatestWorkTest, IsDoneAndItsOutcomeUsedInLaterTurns) {
  work->start(named("one"));
  EXPECT_TRUE(done.empty());
  queue.run();
  EXPECT_EQ(done, std::vector<std::string>{"one"});
  EXPECT_TRUE(used.empty());
  runLoop.runPosted();

  EXPECT_EQ(used, std::vector<std::string>{"one"});
}

TEST_F(LatestWorkTest, QueuesNothingHoweverFastItComes) {
  for (int number = 0; number < 100; ++number)
    work->start(named(std::to_string(number)));
  runAll();

  EXPECT_EQ(done, (std::vector<std::string>{"0", "99"}));
  EXPECT_EQ(used, std::vector<std::string>{"99"});
}

TEST_F(LatestWorkTest, DropsTheOutcomeOfWhatWasCancelled) {
  work->start(named("one"));
  work->cancel();
  runAll();
  EXPECT_TRUE(used.empty());

  work->start(named("two"));
  runAll();

  EXPECT_EQ(used, std::vector<std::string>{"two"});
}

TEST_F(LatestWorkTest, DropsTheOutcomeThatComesAfterItsOwner) {
  work->start(named("one"));
  queue.run();
  work.reset();
  runLoop.runPosted();

  EXPECT_TRUE(used.empty());
}

TEST_F(LatestWorkTest, LetsGoOfWhatItHoldsOnTheMainThread) {
  auto held = std::make_shared<int>(1);
  const std::weak_ptr<int> isHeld = held;
  work->start([held = std::move(held)]() -> LatestWork::Finish { return [] {}; });

  queue.run();
  EXPECT_FALSE(isHeld.expired());
  runLoop.runPosted();

  EXPECT_TRUE(isHeld.expired());
}

}  // namespace
