#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/Quillmonger/capture/StoreFixture.h"
#include "tests/support/FaultyFileSystem.h"

namespace quillmonger {

namespace {

class StoreFaultTest : public StoreFixture {
 protected:
  void SetUp() override {
    open();
    store->insert(makeRecord(text("first")));
    ASSERT_TRUE(store->save());
  }
  void TearDown() override { close(); }  // before the disk goes

  testsupport::FaultyFileSystem disk;
};

TEST_F(StoreFaultTest, TellsWhenTheDiskIsFullAndLosesNothing) {
  disk.fillUpAfter(0);
  store->insert(makeRecord(text(largeBytes(600'000, "waiting")), 1));

  const auto failed = store->save();
  ASSERT_FALSE(failed);
  EXPECT_EQ(failed.error().message, "database or disk is full");
  EXPECT_EQ(records().size(), 2U);
  disk.repair();
  ASSERT_TRUE(store->save());
  reopen();

  ASSERT_EQ(records().size(), 2U);
  EXPECT_TRUE(bytesOf(records()[1]) == largeBytes(600'000, "waiting"));
}

TEST_F(StoreFaultTest, SurvivesADiskThatFillsUpAtAnyPoint) {
  for (std::int64_t free = 0; free < 60'000; free += 1'777) {
    disk.fillUpAfter(free);
    store->insert(makeRecord(text(largeBytes(20'000, std::to_string(free))), 1));
    (void)store->save();
    disk.repair();
    ASSERT_TRUE(store->save()) << free;
  }
  const auto count = records().size();

  reopen();

  EXPECT_EQ(records().size(), count);
}

TEST_F(StoreFaultTest, SaysThatItCouldNotAutosaveAndTriesAgainEveryFiveSeconds) {
  disk.setSyncFails(true);
  const auto record = makeRecord(text(largeBytes(5000, "waiting")), 1);
  const auto data = record->data().begin()->second;
  store->insert(record);

  testing::internal::CaptureStdout();
  loop.advance(SqliteStoreContext::autosaveDelay);
  std::string output;
  const bool isTold = runUntil([&output] {
    output += testing::internal::GetCapturedStdout();
    testing::internal::CaptureStdout();
    return !output.empty();
  });
  testing::internal::GetCapturedStdout();

  ASSERT_TRUE(isTold);
  EXPECT_EQ(output, "could not autosave: disk I/O error\n");
  EXPECT_FALSE(data->source());
  disk.repair();
  loop.advance(SqliteStoreContext::retryInterval);
  EXPECT_TRUE(runUntil([&] { return data->source() != nullptr; }));
}

TEST_F(StoreFaultTest, KeepsTheOrderOfChangesAcrossAFailure) {
  const auto kept = makeRecord(text("kept"), 1);
  const auto dropped = makeRecord(text("dropped"), 2);
  store->insert(kept);
  store->insert(dropped);
  disk.setSyncFails(true);
  ASSERT_FALSE(store->save());

  kept->setTimesPasted(4);
  store->remove(dropped);
  store->remove(records().front());
  disk.repair();
  ASSERT_TRUE(store->save());
  reopen();

  ASSERT_EQ(records().size(), 1U);
  EXPECT_EQ(bytesOf(records().front()), "kept");
  EXPECT_EQ(records().front()->timesPasted(), 4);
}

TEST_F(StoreFaultTest, HasEverythingSavedAfterAPowerCut) {
  for (int i = 0; i < 20; ++i) {
    store->insert(makeRecord(text(largeBytes(static_cast<std::size_t>(i) * 3000, "cut")), i + 1));
    ASSERT_TRUE(store->save());
    const testsupport::TemporaryFolder after;
    disk.writeStateAfterPowerCut(after.path());
    testsupport::VirtualRunLoop otherLoop;

    auto opened = SqliteStoreContext::open(after.path(), otherLoop);

    ASSERT_TRUE(opened) << opened.error().message;
    EXPECT_EQ(opened.value()->fetchAll().value().size(), static_cast<std::size_t>(i) + 2);
  }
}

TEST_F(StoreFixture, HasEverythingAutosavedAfterAKill) {
  for (int round = 0; round < 5; ++round) {
    int reports[2];
    ASSERT_EQ(pipe(reports), 0);
    const pid_t child = fork();
    if (child == 0) {
      open();
      for (int i = 0;; ++i) {
        const auto record = makeRecord(text(largeBytes(5000, std::to_string(round) + "/" + std::to_string(i))), i);
        const auto data = record->data().begin()->second;
        store->insert(record);
        loop.advance(SqliteStoreContext::autosaveDelay);
        if (!runUntil([&] { return data->source() != nullptr; })) _exit(1);
        if (write(reports[1], "+", 1) != 1) _exit(1);
      }
    }
    ASSERT_GT(child, 0);
    ::close(reports[1]);
    std::size_t reported = 0;
    char mark = 0;
    while (reported < static_cast<std::size_t>(round) * 7 + 3 && read(reports[0], &mark, 1) == 1)
      ++reported;
    ASSERT_EQ(kill(child, SIGKILL), 0);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    while (read(reports[0], &mark, 1) == 1)
      ++reported;
    ::close(reports[0]);

    open();
    const auto saved = records();
    std::size_t ofThisRound = 0;
    for (const auto& record : saved) {
      ofThisRound += bytesOf(record).starts_with(std::to_string(round) + "/") ? 1U : 0U;
    }
    EXPECT_GE(ofThisRound, reported);
    EXPECT_LE(ofThisRound, reported + 1);
    close();
  }
}

}  // namespace

}  // namespace quillmonger
