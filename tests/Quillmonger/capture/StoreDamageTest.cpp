#include <sqlite3.h>

#include "tests/Quillmonger/capture/StoreFixture.h"

namespace quillmonger {

namespace {

using foundation::Data;

/// A store with small and large values, closed, that a test then damages.
class StoreDamageTest : public StoreFixture {
 protected:
  void SetUp() override {
    open();
    store->insert(makeRecord(text("small")));
    store->insert(makeRecord({{"public.png", Data(largeBytes(600'000, "large"))}}, 1));
    ASSERT_TRUE(store->save());
    close();
  }

  void execute(const std::string& sql) {
    sqlite3* connection = nullptr;
    ASSERT_EQ(sqlite3_open(file().c_str(), &connection), SQLITE_OK);
    char* error = nullptr;
    EXPECT_EQ(sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, &error), SQLITE_OK) << error;
    sqlite3_close(connection);
  }

  void expectRefusal() {
    const Files before = files();
    EXPECT_NE(openingError(), "");
    EXPECT_TRUE(files() == before) << "the refused store was changed";
  }

  void overwrite(std::size_t offset, const std::string& bytes) {
    std::fstream stream(file(), std::ios::binary | std::ios::in | std::ios::out);
    stream.seekp(static_cast<std::streamoff>(offset));
    stream << bytes;
  }
};

struct Damage {
  const char* name;
  const char* sql;
};

class DamagedRowTest : public StoreDamageTest, public testing::WithParamInterface<Damage> {};

TEST_P(DamagedRowTest, IsRefusedAndLeftAsItIs) {
  execute(GetParam().sql);

  expectRefusal();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DamagedRowTest,
    testing::Values(Damage{"ShortIdentity", "UPDATE item SET id = x'00' WHERE key = 1"},
                    Damage{"IdentityOfTheWrongType", "UPDATE item SET id = 5 WHERE key = 1"},
                    Damage{"DigestOfOtherLetters", "UPDATE item SET hashedData = upper(hashedData) || 'G'"},
                    Damage{"LocationThatIsNoUrl", "UPDATE item SET sourceAppBundleURL = 'no url'"},
                    Damage{"DateOfTheWrongType", "UPDATE item SET creationDate = 'today'"},
                    Damage{"CountOfTheWrongType", "UPDATE item SET timesPasted = 1.5"},
                    Damage{"NegativeKey", "UPDATE item SET key = -1 WHERE key = 1"},
                    Damage{"ValueWithoutRecord", "INSERT INTO payload(item, type) VALUES(99, 't')"},
                    Damage{"ValueWithoutRecordBetween", "INSERT INTO payload(item, type) VALUES(0, 't')"},
                    Damage{"ValueOfTheWrongType", "UPDATE payload SET data = 'text' WHERE item = 1"},
                    Damage{"InlineValueTooLarge", "UPDATE payload SET data = zeroblob(5000) WHERE item = 1"},
                    Damage{"ValueInTwoPlaces", "UPDATE payload SET data = x'00' WHERE item = 2"},
                    Damage{"NegativeSize", "UPDATE payload SET size = -1 WHERE item = 2"},
                    Damage{"EnormousSize", "UPDATE payload SET size = 9223372036854775807 WHERE item = 2"},
                    Damage{"OtherSize", "UPDATE payload SET size = size + 1 WHERE item = 2"},
                    Damage{"EnormousBlobNumber", "UPDATE payload SET blob = 9223372036854775807 WHERE item = 2"},
                    Damage{"NegativeBlobNumber", "UPDATE payload SET blob = -1 WHERE item = 2"},
                    Damage{"ShortFingerprint", "UPDATE payload SET fingerprint = x'00' WHERE item = 2"},
                    Damage{"MissingChunk", "DELETE FROM chunk WHERE key = (SELECT min(key) + 1 FROM chunk)"},
                    Damage{"ShortChunk", "UPDATE chunk SET data = x'00' WHERE key = (SELECT min(key) FROM chunk)"},
                    Damage{"FurtherTable", "CREATE TABLE more(a)"},
                    Damage{"FurtherTrigger", "CREATE TRIGGER t AFTER INSERT ON item BEGIN DELETE FROM item; END"},
                    Damage{"MissingTable", "DROP TABLE payload"},
                    Damage{"OtherColumns", "ALTER TABLE item ADD COLUMN more"},
                    Damage{"OtherProgram", "PRAGMA application_id = 1"},
                    Damage{"NewerVersion", "PRAGMA user_version = 2"}),
    [](const auto& test) { return test.param.name; });

TEST_F(StoreDamageTest, IsRefusedWhenItIsNoDatabase) {
  std::ofstream(file(), std::ios::trunc) << "a letter, not a database";

  expectRefusal();
}

TEST_F(StoreDamageTest, IsRefusedWhenItIsEmpty) {
  std::ofstream(file(), std::ios::trunc).flush();

  expectRefusal();
}

TEST_F(StoreDamageTest, IsRefusedWhenItIsCutShort) {
  std::filesystem::resize_file(file(), 9000);

  expectRefusal();
}

TEST_F(StoreDamageTest, IsRefusedWhenOnlyItsLogIsThere) {
  std::filesystem::rename(file(), folder() / "history.sqlite-wal");

  expectRefusal();
}

TEST_F(StoreDamageTest, IsRefusedWhenAnotherProgramWritesIt) {
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(file().c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);

  expectRefusal();

  sqlite3_close(other);
}

TEST_F(StoreDamageTest, NeverCrashesWhateverPageIsOverwritten) {
  const auto size = std::filesystem::file_size(file());
  const std::string original = files()["history.sqlite"];
  for (std::size_t page = 0; page * 4096 < size; ++page) {
    for (const char filling : {'\0', '\xFF', '\x7F'}) {
      overwrite(page * 4096, std::string(200, filling));
      const Files before = files();
      if (!openingError().empty()) {
        EXPECT_TRUE(files() == before) << page;
      }
      std::ofstream(file(), std::ios::binary | std::ios::trunc) << original;
    }
  }
  EXPECT_EQ(openingError(), "");
}

TEST_F(StoreDamageTest, ReadsAChunkThatWentMissingAsAbsent) {
  open();
  const auto record = records()[1];
  execute("DELETE FROM chunk WHERE key = (SELECT max(key) FROM chunk)");

  EXPECT_EQ(bytesOf(record, "public.png"), "absent");
  EXPECT_EQ(record->data("public.png")->part(0, 5), "large");
}

TEST_F(StoreDamageTest, SweepsAwayChunksThatNoRecordKnows) {
  execute("INSERT INTO chunk VALUES(7340032, CAST('forgotten-chunk' AS BLOB))");
  ASSERT_TRUE(isInFiles("forgotten-chunk"));

  open();
  ASSERT_TRUE(store->save());

  EXPECT_FALSE(isInFiles("forgotten-chunk"));
  EXPECT_TRUE(bytesOf(records()[1], "public.png") == largeBytes(600'000, "large"));
}

}  // namespace

}  // namespace quillmonger
