#include "Quillmonger/capture/SqliteDatabase.h"

#include <sqlite3.h>

namespace quillmonger {

namespace {

// No value of the store is larger, so a larger one in the file is damage and is not brought into memory.
constexpr int valueLimit = 16 * 1024 * 1024;

[[noreturn]] void failOf(sqlite3* connection) { throw StoreFailure(sqlite3_errmsg(connection)); }

}  // namespace

void SqliteStatement::Finalizer::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

SqliteStatement::SqliteStatement(sqlite3* connection, std::string_view sql) : m_connection(connection) {
  sqlite3_stmt* statement = nullptr;
  const int code = sqlite3_prepare_v2(connection, sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
  m_statement.reset(statement);
  check(code);
}

void SqliteStatement::fail() const { failOf(m_connection); }

void SqliteStatement::check(int code) const {
  if (code != SQLITE_OK) fail();
}

SqliteStatement& SqliteStatement::bind(int parameter, std::int64_t value) {
  check(sqlite3_bind_int64(m_statement.get(), parameter, value));
  return *this;
}

SqliteStatement& SqliteStatement::bindText(int parameter, std::string_view text) {
  // A null pointer would be bound as NULL, which an empty text is not.
  const char* const start = text.data() == nullptr ? "" : text.data();
  check(sqlite3_bind_text64(m_statement.get(), parameter, start, text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
  return *this;
}

SqliteStatement& SqliteStatement::bindBlob(int parameter, std::string_view bytes) {
  const char* const start = bytes.data() == nullptr ? "" : bytes.data();
  check(sqlite3_bind_blob64(m_statement.get(), parameter, start, bytes.size(), SQLITE_STATIC));
  return *this;
}

SqliteStatement& SqliteStatement::bindNull(int parameter) {
  check(sqlite3_bind_null(m_statement.get(), parameter));
  return *this;
}

bool SqliteStatement::step() {
  const int code = sqlite3_step(m_statement.get());
  if (code == SQLITE_ROW) return true;
  if (code != SQLITE_DONE) {
    const StoreFailure failure(sqlite3_errmsg(m_connection));
    sqlite3_reset(m_statement.get());
    throw failure;
  }
  reset();
  return false;
}

void SqliteStatement::run() {
  while (step()) {
  }
}

void SqliteStatement::reset() { sqlite3_reset(m_statement.get()); }

void SqliteStatement::checkType(int column, int type) const {
  if (sqlite3_column_type(m_statement.get(), column) != type) throw StoreFailure("the store is damaged: a wrong type");
}

bool SqliteStatement::isNull(int column) const { return sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL; }

std::int64_t SqliteStatement::integer(int column) const {
  checkType(column, SQLITE_INTEGER);
  return sqlite3_column_int64(m_statement.get(), column);
}

std::string_view SqliteStatement::text(int column) const {
  checkType(column, SQLITE_TEXT);
  const auto* start = reinterpret_cast<const char*>(sqlite3_column_text(m_statement.get(), column));
  if (start == nullptr) fail();
  return {start, static_cast<std::size_t>(sqlite3_column_bytes(m_statement.get(), column))};
}

std::string_view SqliteStatement::blob(int column) const {
  checkType(column, SQLITE_BLOB);
  const auto* start = static_cast<const char*>(sqlite3_column_blob(m_statement.get(), column));
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(m_statement.get(), column));
  if (start == nullptr && size > 0) fail();
  return size == 0 ? std::string_view() : std::string_view(start, size);
}

void SqliteDatabase::Closer::operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }

SqliteDatabase::SqliteDatabase(const std::filesystem::path& file) {
  sqlite3* connection = nullptr;
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
  const int code = sqlite3_open_v2(file.c_str(), &connection, flags, nullptr);
  m_connection.reset(connection);
  if (code != SQLITE_OK) throw StoreFailure(connection != nullptr ? sqlite3_errmsg(connection) : "out of memory");
  sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
  sqlite3_limit(connection, SQLITE_LIMIT_LENGTH, valueLimit);
  execute("PRAGMA temp_store=MEMORY; PRAGMA cell_size_check=ON");
}

void SqliteDatabase::setOnClose(OnClose onClose) {
  const int leave = onClose == OnClose::leaveLog ? 1 : 0;
  sqlite3_db_config(m_connection.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, leave, nullptr);
}

void SqliteDatabase::setLockTimeoutMilliseconds(int milliseconds) {
  sqlite3_busy_timeout(m_connection.get(), milliseconds);
}

void SqliteDatabase::execute(const char* sql) {
  if (sqlite3_exec(m_connection.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) failOf(m_connection.get());
}

std::int64_t SqliteDatabase::integer(std::string_view sql) {
  auto statement = prepare(sql);
  if (!statement.step()) throw StoreFailure("the store gives no answer");
  return statement.integer(0);
}

bool SqliteDatabase::emptyLog() {
  const int code = sqlite3_wal_checkpoint_v2(m_connection.get(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
  if (code != SQLITE_OK && (code & 0xFF) != SQLITE_BUSY) failOf(m_connection.get());
  return code == SQLITE_OK;
}

SqliteTransaction::SqliteTransaction(SqliteDatabase& database) : m_database(database) {
  m_database.execute("BEGIN IMMEDIATE");
}

SqliteTransaction::~SqliteTransaction() {
  if (!m_isOpen) return;
  try {
    m_database.execute("ROLLBACK");
  } catch (const StoreFailure&) {
    // Some failures have undone the transaction already; there is nothing left to undo then.
  }
}

void SqliteTransaction::commit() {
  m_database.execute("COMMIT");
  m_isOpen = false;
}

}  // namespace quillmonger
