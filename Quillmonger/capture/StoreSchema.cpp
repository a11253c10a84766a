#include "Quillmonger/capture/StoreSchema.h"

#include <array>
#include <fstream>
#include <string>
#include <string_view>

namespace quillmonger::storeschema {

namespace {

constexpr std::int64_t applicationId = 0x51756C6D;  // "Qulm"
constexpr std::int64_t version = 1;

struct Table {
  std::string_view name;
  std::string_view sql;
};

// In the order of their names.
//
// chunk:   the bytes of large values; `key` as chunkKey says
// item:    a record's attributes; creationDate in nanoseconds since 1970
// payload: a record's types; a value stands in `data`, or in the chunks of `blob`, or is absent when both are NULL
constexpr std::array<Table, 3> tables = {{
    {"chunk", "CREATE TABLE chunk(key INTEGER PRIMARY KEY, data BLOB NOT NULL)"},
    {"item",
     "CREATE TABLE item(key INTEGER PRIMARY KEY, id BLOB NOT NULL, hashedData TEXT NOT NULL, "
     "sourceAppBundleIdentifier TEXT, sourceAppBundleURL TEXT, creationDate INTEGER NOT NULL, "
     "timesPasted INTEGER NOT NULL)"},
    {"payload",
     "CREATE TABLE payload(item INTEGER NOT NULL, type TEXT NOT NULL, data BLOB, blob INTEGER, size INTEGER, "
     "fingerprint BLOB, PRIMARY KEY(item, type)) WITHOUT ROWID"},
}};

void checkIdentity(std::int64_t foundApplicationId, std::int64_t foundVersion) {
  if (foundApplicationId != applicationId) throw StoreFailure("the file is not a clipboard history");
  if (foundVersion > version) throw StoreFailure("the history was written by a newer version");
  if (foundVersion < version) throw StoreFailure("the history has an unknown version");
}

std::int64_t bigEndian(std::string_view bytes) {
  std::uint32_t value = 0;
  for (const char byte : bytes)
    value = value << 8 | static_cast<unsigned char>(byte);
  return static_cast<std::int32_t>(value);
}

}  // namespace

void create(const StoreFolder& folder) {
  const auto draft = folder.makeDraft();
  {
    SqliteDatabase database(draft);
    database.execute("PRAGMA synchronous=EXTRA");
    SqliteTransaction transaction(database);
    for (const auto& table : tables)
      database.execute(std::string(table.sql).c_str());
    database.execute(("PRAGMA application_id=" + std::to_string(applicationId)).c_str());
    database.execute(("PRAGMA user_version=" + std::to_string(version)).c_str());
    transaction.commit();
    database.execute("PRAGMA journal_mode=WAL");
  }
  folder.adoptDraft(draft);
}

void checkHeader(const std::filesystem::path& file) {
  constexpr std::string_view magic("SQLite format 3\0", 16);
  std::array<char, 100> header{};
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw StoreFailure("can't read the history's file");
  stream.read(header.data(), header.size());
  const std::string_view bytes(header.data(), static_cast<std::size_t>(stream.gcount()));
  if (bytes.size() < header.size() || !bytes.starts_with(magic)) throw StoreFailure("the file is not a database");
  checkIdentity(bigEndian(bytes.substr(68, 4)), bigEndian(bytes.substr(60, 4)));
}

void check(SqliteDatabase& database) {
  checkIdentity(database.integer("PRAGMA application_id"), database.integer("PRAGMA user_version"));
  auto schema = database.prepare("SELECT name, sql FROM sqlite_schema ORDER BY name");
  for (const auto& table : tables) {
    if (!schema.step() || schema.text(0) != table.name || schema.isNull(1) || schema.text(1) != table.sql) {
      throw StoreFailure("the history's tables are not as they should be");
    }
  }
  if (schema.step()) throw StoreFailure("the history has tables that are not its own");
}

}  // namespace quillmonger::storeschema
