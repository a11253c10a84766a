#include "Quillmonger/capture/SqliteStoreContext.h"

#include <sys/stat.h>

#include <set>

#include "tests/Quillmonger/capture/StoreFixture.h"

namespace quillmonger {

namespace {

using foundation::Data;

class SqliteStoreContextTest : public StoreFixture {
 protected:
  void SetUp() override { open(); }

  /// Every "secret-" with its four digits that stands anywhere in the files.
  static std::set<std::string> secretsIn(const Files& files) {
    std::set<std::string> secrets;
    for (const auto& [name, content] : files) {
      for (auto at = content.find("secret-"); at != std::string::npos; at = content.find("secret-", at + 1)) {
        secrets.insert(content.substr(at, 11));
      }
    }
    return secrets;
  }
};

TEST_F(SqliteStoreContextTest, GivesEveryAttributeBackAfterARestart) {
  const Payload payload = {{"public.utf8-plain-text", Data("a")},
                           {"public.png", std::nullopt},
                           {"com.ondalis.Quillmonger", Data("")},
                           {std::string("odd\0\xFF\n", 6), Data(std::string("\0\x01", 2))}};
  const ClipboardItem::Attributes attributes = {foundation::Uuid::random(),
                                                "0123456789abcdef0123456789abcdef",
                                                "org.example.Editor",
                                                foundation::Url::parse("file:///usr/share/editor.desktop"),
                                                foundation::Date(std::chrono::nanoseconds(1234567890123456789)),
                                                -7};
  store->insert(std::make_shared<ClipboardItem>(payload, attributes));
  ASSERT_TRUE(store->save());

  reopen();

  ASSERT_EQ(records().size(), 1U);
  const auto record = records().front();
  EXPECT_EQ(record->data(), payload);
  EXPECT_EQ(record->id(), attributes.id);
  EXPECT_EQ(record->hashedData(), attributes.hashedData);
  EXPECT_EQ(record->sourceAppBundleIdentifier(), attributes.sourceAppBundleIdentifier);
  EXPECT_EQ(record->sourceAppBundleURL(), attributes.sourceAppBundleURL);
  EXPECT_EQ(record->creationDate(), attributes.creationDate);
  EXPECT_EQ(record->timesPasted(), -7);
}

TEST_F(SqliteStoreContextTest, KeepsAbsentAttributesAbsent) {
  store->insert(makeRecord({}));
  ASSERT_TRUE(store->save());

  reopen();

  EXPECT_TRUE(records().front()->data().empty());
  EXPECT_FALSE(records().front()->sourceAppBundleIdentifier());
  EXPECT_FALSE(records().front()->sourceAppBundleURL());
}

TEST_F(SqliteStoreContextTest, KeepsTheOrderOfRecordsOfOneMoment) {
  for (const char* content : {"b", "a", "c"})
    store->insert(makeRecord(text(content)));
  ASSERT_TRUE(store->save());

  reopen();

  ASSERT_EQ(records().size(), 3U);
  EXPECT_EQ(bytesOf(records()[0]), "b");
  EXPECT_EQ(bytesOf(records()[1]), "a");
  EXPECT_EQ(bytesOf(records()[2]), "c");
}

TEST_F(SqliteStoreContextTest, SavesAChangedPasteCount) {
  store->insert(makeRecord(text("a")));
  reopen();
  ASSERT_TRUE(records().empty());
  const auto record = makeRecord(text("b"));
  store->insert(record);
  ASSERT_TRUE(store->save());
  record->setTimesPasted(3);
  ASSERT_TRUE(store->save());

  reopen();

  EXPECT_EQ(records().front()->timesPasted(), 3);
}

TEST_F(SqliteStoreContextTest, SavesByItselfATenthOfASecondAfterAChange) {
  const auto record = makeRecord(text(largeBytes(5000, "large")));
  store->insert(record);
  const auto data = record->data().begin()->second;

  loop.advance(foundation::Seconds(0.0999));
  EXPECT_FALSE(data->source());
  loop.advance(foundation::Seconds(0.0001));

  EXPECT_TRUE(runUntil([&] { return data->source() != nullptr; }));
  reopen();
  EXPECT_EQ(records().size(), 1U);
}

TEST_F(SqliteStoreContextTest, NeverWritesWhatIsRemovedBeforeTheFirstSave) {
  const auto record = makeRecord(text("fleeting-secret"));
  store->insert(record);
  store->remove(record);

  ASSERT_TRUE(store->save());

  EXPECT_FALSE(isInFiles("fleeting-secret"));
  reopen();
  EXPECT_TRUE(records().empty());
}

TEST_F(SqliteStoreContextTest, FinishesWhatWasHandedOverWhenItGoes) {
  store->insert(makeRecord(text("a")));
  loop.advance(SqliteStoreContext::autosaveDelay);

  reopen();

  EXPECT_EQ(records().size(), 1U);
}

TEST_F(SqliteStoreContextTest, LetsGoOfTheMemoryOfLargeValuesOnceTheyAreOnTheDisk) {
  const std::string bytes = largeBytes(700'000, "picture");
  const auto record = makeRecord({{"public.png", Data(bytes)}, {"public.utf8-plain-text", Data("small")}});
  store->insert(record);

  ASSERT_TRUE(store->save());

  EXPECT_TRUE(record->data("public.png")->source());
  EXPECT_EQ(bytesOf(record, "public.png"), bytes);
  EXPECT_EQ(record->data("public.png")->part(262'140, 10), bytes.substr(262'140, 10));
  EXPECT_EQ(record->data("public.png")->part(699'995, 10), bytes.substr(699'995));
  EXPECT_FALSE(record->data("public.utf8-plain-text")->source());
}

TEST_F(SqliteStoreContextTest, KeepsValuesOfEverySizeAroundItsLimits) {
  for (const std::size_t size : {0U, 1U, 4096U, 4097U, 262'143U, 262'144U, 262'145U, 524'288U}) {
    store->insert(makeRecord(text(largeBytes(size, "s")), static_cast<int>(size)));
  }
  ASSERT_TRUE(store->save());

  reopen();

  ASSERT_EQ(records().size(), 8U);
  for (const auto& record : records()) {
    const auto size = record->data().begin()->second->size();
    EXPECT_TRUE(bytesOf(record) == largeBytes(size, "s")) << size;
  }
}

TEST_F(SqliteStoreContextTest, KeepsTheBytesWhenANewRecordTakesThemOverFromARemovedOneInSeparateSaves) {
  const std::string bytes = largeBytes(600'000, "shared");
  store->insert(makeRecord(text(bytes)));
  ASSERT_TRUE(store->save());
  reopen();
  auto older = records().front();
  const auto newer = makeRecord(older->data(), 1);

  store->remove(older);
  older.reset();
  ASSERT_TRUE(store->save());
  store->insert(newer);
  ASSERT_TRUE(store->save());
  reopen();

  ASSERT_EQ(records().size(), 1U);
  EXPECT_TRUE(bytesOf(records().front()) == bytes);
}

TEST_F(SqliteStoreContextTest, StoresTheBytesOnceWhenTwoRecordsShareThem) {
  const std::string bytes = largeBytes(3'000'000, "shared");
  const auto first = makeRecord(text(bytes));
  store->insert(first);
  ASSERT_TRUE(store->save());

  store->insert(makeRecord(first->data(), 1));
  store->insert(makeRecord(text(largeBytes(3'000'000, "other")), 2));
  store->insert(makeRecord(text(largeBytes(3'000'000, "other")), 3));
  ASSERT_TRUE(store->save());
  reopen();

  EXPECT_LT(std::filesystem::file_size(file()), 7'000'000U);
  ASSERT_EQ(records().size(), 4U);
  store->remove(records()[0]);
  ASSERT_TRUE(store->save());
  reopen();
  EXPECT_TRUE(bytesOf(records()[0]) == bytes);
}

TEST_F(SqliteStoreContextTest, LeavesNothingOfDeletedContentInItsFiles) {
  for (int i = 0; i < 240; ++i) {
    const auto number = std::to_string(1000 + i);
    const auto record =
        makeRecord(text("secret-" + number + largeBytes(static_cast<std::size_t>(i % 7) * 900, "x")), i);
    store->insert(record);
    if (i % 40 == 0) {
      ASSERT_TRUE(store->save());
    }
  }
  store->insert(makeRecord(text(largeBytes(600'000, "hidden-large")), 600));
  ASSERT_TRUE(store->save());
  ASSERT_TRUE(isInFiles("secret-1007"));
  ASSERT_TRUE(isInFiles("hidden-large"));

  auto all = records();
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (i % 3 != 0) store->remove(all[i]);
  }
  all.clear();
  ASSERT_TRUE(store->save());
  std::set<std::string> expected;
  for (int i = 0; i < 240; i += 3)
    expected.insert("secret-" + std::to_string(1000 + i));
  EXPECT_EQ(secretsIn(files()), expected);
  for (const auto& record : records())
    store->remove(record);
  ASSERT_TRUE(store->save());

  for (int i = 0; i < 240; ++i)
    EXPECT_FALSE(isInFiles("secret-" + std::to_string(1000 + i))) << i;
  EXPECT_FALSE(isInFiles("hidden-large"));
}

TEST_F(SqliteStoreContextTest, DeletesTheBytesOfARemovedRecordOnceTheirLastHolderLetsGo) {
  const auto record = makeRecord(text(largeBytes(600'000, "held")));
  store->insert(record);
  ASSERT_TRUE(store->save());
  auto holder = std::make_unique<Data>(*record->data().begin()->second);
  reopen();
  holder = std::make_unique<Data>(*records().front()->data().begin()->second);

  store->remove(records().front());
  ASSERT_TRUE(store->save());
  EXPECT_TRUE(*holder->bytes() == largeBytes(600'000, "held"));
  holder.reset();
  ASSERT_TRUE(store->save());

  EXPECT_FALSE(isInFiles("held2"));
}

TEST_F(SqliteStoreContextTest, ReadsNothingAfterTheStoreIsGone) {
  const auto record = makeRecord(text(largeBytes(5000, "late")));
  store->insert(record);
  ASSERT_TRUE(store->save());

  close();

  EXPECT_EQ(bytesOf(record), "absent");
}

TEST_F(SqliteStoreContextTest, KeepsFolderAndFilesToTheUser) {
  store->insert(makeRecord(text("a")));
  ASSERT_TRUE(store->save());

  const auto modeOf = [](const std::filesystem::path& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? status.st_mode & 0777U : 0U;
  };
  EXPECT_EQ(modeOf(folder()), 0700U);
  for (const auto& entry : std::filesystem::directory_iterator(folder())) {
    EXPECT_EQ(modeOf(entry.path()), 0600U) << entry.path().filename();
  }
}

TEST_F(SqliteStoreContextTest, NamesARecordByItsKeyInTheStore) {
  const auto record = makeRecord(text("private"));
  EXPECT_EQ(record->description(), "ClipboardItem: x-quillmonger:ClipboardItem/new");

  store->insert(record);

  EXPECT_EQ(record->description(), "ClipboardItem: x-quillmonger:ClipboardItem/p1");
}

TEST_F(SqliteStoreContextTest, LetsRecordsOutliveIt) {
  const auto record = makeRecord(text("a"));
  store->insert(record);

  close();
  record->setTimesPasted(5);

  EXPECT_EQ(record->timesPasted(), 5);
}

TEST_F(SqliteStoreContextTest, IsNotOpenedTwiceAtATime) {
  EXPECT_EQ(openingError(), "another process has the store: Resource temporarily unavailable");
}

}  // namespace

}  // namespace quillmonger
