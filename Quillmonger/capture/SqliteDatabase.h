#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace quillmonger {

/// Why the database refused. Thrown among the classes of the store and caught by those that the program sees.
class StoreFailure final : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// One prepared statement. Every call throws `StoreFailure` when the database refuses; so does reading a column as what
/// it is not, since the file may hold anything. Parameters count from 1, columns from 0. Thread: its database's.
class SqliteStatement final {
 public:
  SqliteStatement(sqlite3* connection, std::string_view sql);

  SqliteStatement& bind(int parameter, std::int64_t value);
  /// The text is copied.
  SqliteStatement& bindText(int parameter, std::string_view text);
  /// The bytes are borrowed until `run` or `reset`.
  SqliteStatement& bindBlob(int parameter, std::string_view bytes);
  SqliteStatement& bindNull(int parameter);

  /// Whether there is a further row. After the last one the statement can be bound and run anew.
  bool step();
  /// Runs a statement to its end.
  void run();
  /// Ends reading before the last row.
  void reset();

  [[nodiscard]] bool isNull(int column) const;
  [[nodiscard]] std::int64_t integer(int column) const;
  /// Valid until the next step.
  [[nodiscard]] std::string_view text(int column) const;
  [[nodiscard]] std::string_view blob(int column) const;

 private:
  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const;
  };
  [[noreturn]] void fail() const;
  void check(int code) const;
  void checkType(int column, int type) const;

  sqlite3* m_connection;
  std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
};

/// One connection to a database file. Any thread, but one at a time.
class SqliteDatabase final {
 public:
  /// Opens a file that exists, with everything off by which a hostile file could make the library act for it.
  explicit SqliteDatabase(const std::filesystem::path& file);

  /// Whether closing the last connection merges the log into the file. It does unless something else is said.
  enum class OnClose { mergeLog, leaveLog };
  void setOnClose(OnClose onClose);

  /// How long another connection's lock is waited for; not at all at first.
  void setLockTimeoutMilliseconds(int milliseconds);

  void execute(const char* sql);
  [[nodiscard]] SqliteStatement prepare(std::string_view sql) { return {m_connection.get(), sql}; }
  /// The first column of the first row.
  [[nodiscard]] std::int64_t integer(std::string_view sql);
  /// Brings the log into the file and empties it, so that nothing deleted is left in it. Whether it succeeded: a reader
  /// may stand in the way.
  [[nodiscard]] bool emptyLog();

 private:
  struct Closer {
    void operator()(sqlite3* connection) const;
  };
  std::unique_ptr<sqlite3, Closer> m_connection;
};

/// A transaction that is undone unless it is committed.
class SqliteTransaction final {
 public:
  explicit SqliteTransaction(SqliteDatabase& database);
  SqliteTransaction(const SqliteTransaction&) = delete;
  SqliteTransaction& operator=(const SqliteTransaction&) = delete;
  ~SqliteTransaction();
  void commit();

 private:
  SqliteDatabase& m_database;
  bool m_isOpen = true;
};

}  // namespace quillmonger
