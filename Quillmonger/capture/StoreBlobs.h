#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "Quillmonger/capture/SqliteDatabase.h"

namespace quillmonger {

/// The large values of one store: reads them, and knows which of them are held by somebody in memory, so that none is
/// deleted from under its holder. Shared by the store and every `StoredBlob`. Any thread.
class StoreBlobs final {
 public:
  /// `reader` is a connection of its own.
  explicit StoreBlobs(SqliteDatabase reader);

  /// `length` bytes from `offset` on of a blob of `size` bytes; absent when chunks are missing, and after `close`.
  [[nodiscard]] std::optional<std::string> read(std::int64_t blob, std::size_t size, std::size_t offset,
                                                std::size_t length);

  void hold(std::int64_t blob);
  void release(std::int64_t blob);
  [[nodiscard]] bool isHeld(std::int64_t blob) const;

  /// `notify` is called, on any thread, when a blob was released. It must not call back.
  void setReleaseHandler(std::function<void()> notify);
  /// The blobs released since the last call.
  [[nodiscard]] std::vector<std::int64_t> takeReleased();

  /// Ends all reading and telling: the store goes.
  void close();

 private:
  struct Reader {
    explicit Reader(SqliteDatabase connection);
    SqliteDatabase database;
    SqliteStatement select;
  };
  bool appendChunk(std::string& bytes, std::int64_t key, std::size_t chunkSize, std::size_t offset, std::size_t length);

  std::mutex m_readerMutex;
  std::unique_ptr<Reader> m_reader;

  mutable std::mutex m_holdMutex;
  std::set<std::int64_t> m_held;
  std::vector<std::int64_t> m_released;
  std::function<void()> m_notify;
};

}  // namespace quillmonger
