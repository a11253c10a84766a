#pragma once

#include <filesystem>

namespace quillmonger {

/// The folder in which one store lies, kept to this user and, while this object lives, to this process.
/// Throws `StoreFailure`.
class StoreFolder final {
 public:
  /// Makes the folder when it is missing. Fails when another process has it.
  explicit StoreFolder(std::filesystem::path path);
  StoreFolder(const StoreFolder&) = delete;
  StoreFolder& operator=(const StoreFolder&) = delete;
  ~StoreFolder();

  /// The database.
  [[nodiscard]] std::filesystem::path file() const { return m_path / "history.sqlite"; }
  /// Its write-ahead log.
  [[nodiscard]] std::filesystem::path log() const { return m_path / "history.sqlite-wal"; }

  /// A new empty file that only this user can read, for a database that is made beside the real one.
  [[nodiscard]] std::filesystem::path makeDraft() const;
  /// Puts the finished draft in the database's place, at once and for good.
  void adoptDraft(const std::filesystem::path& draft) const;
  /// Takes away what others may do with the files.
  void restrictFiles() const;

 private:
  std::filesystem::path m_path;
  int m_lock;
};

}  // namespace quillmonger
