#pragma once

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "Foundation/Result.h"
#include "Quillmonger/capture/ClipboardItem.h"
#include "Quillmonger/capture/SqliteDatabase.h"
#include "Quillmonger/capture/StoreBlobs.h"

namespace quillmonger {

/// What is to be done to one record on the disk.
struct StoreChange {
  enum class Kind { insert, update, remove };
  std::int64_t key;
  Kind kind;
  /// Of an inserted or updated record.
  std::optional<ClipboardItem::Attributes> attributes = std::nullopt;
  /// Of an inserted record.
  Payload payload = {};
};

/// Writes batches of changes on a thread of its own, each batch as a whole or not at all. Once a large value is on the
/// disk its memory is let go. What nobody needs any more is deleted from the file and from its log.
/// Its functions are for one thread, the main one.
class StoreWriter final {
 public:
  using Batch = std::vector<StoreChange>;
  using References = std::map<std::int64_t, std::int64_t>;

  /// `references` tells how many values lie in each blob. `finished` is called on the writer's thread after each batch.
  StoreWriter(SqliteDatabase database, std::shared_ptr<StoreBlobs> blobs, References references,
              std::function<void()> finished);
  StoreWriter(const StoreWriter&) = delete;
  StoreWriter& operator=(const StoreWriter&) = delete;
  /// Finishes the batch that was handed over.
  ~StoreWriter();

  /// Only when no batch is under way, that is, when the outcome of the last one was taken.
  void write(Batch batch);
  /// How the batch under way ended; absent while it has not.
  [[nodiscard]] std::optional<foundation::Outcome> takeOutcome();
  /// The same, waiting for it.
  [[nodiscard]] foundation::Outcome waitForOutcome();
  /// Waits until everything that nobody needs any more is gone from the files, and tells if it could not be done.
  [[nodiscard]] foundation::Outcome waitUntilClean();

 private:
  using WrittenValues = std::vector<std::pair<foundation::Data, std::int64_t>>;
  struct Effects;

  void run();
  void performBatch(std::unique_lock<std::mutex>& lock);
  void performCleaning(std::unique_lock<std::mutex>& lock);
  foundation::Outcome commit(const Batch& batch);
  void insert(const StoreChange& change, Effects& effects);
  void update(const StoreChange& change);
  void remove(const StoreChange& change, Effects& effects);
  std::optional<std::int64_t> writeBlob(const foundation::Data& data, Effects& effects);
  bool writeChunks(std::int64_t blob, const foundation::Data& data);
  void apply(const Effects& effects);

  void sweepOrphans();
  foundation::Outcome clean();
  void deleteUnusedBlobs();

  SqliteDatabase m_database;
  std::shared_ptr<StoreBlobs> m_blobs;
  std::function<void()> m_finished;

  // The writer's thread alone.
  References m_references;
  std::set<std::int64_t> m_perhapsUnused;
  std::int64_t m_nextBlob = 1;
  bool m_mustEmptyLog = false;

  // Between the threads.
  std::mutex m_mutex;
  std::condition_variable m_changed;
  std::optional<Batch> m_batch;
  std::optional<foundation::Outcome> m_outcome;
  std::optional<foundation::Outcome> m_cleaned;
  std::uint64_t m_cleaningRequests = 0;
  std::uint64_t m_cleanedRequests = 0;
  bool m_mustClean = true;
  bool m_isStopping = false;

  std::thread m_thread;
};

}  // namespace quillmonger
