#include "Quillmonger/capture/StoreWriter.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <string>

#include "Foundation/BackgroundThread.h"
#include "Quillmonger/capture/StoreSchema.h"
#include "Quillmonger/capture/StoredBlob.h"

namespace quillmonger {

namespace {

using foundation::Data;
using foundation::Outcome;

constexpr auto cleaningRetryInterval = std::chrono::seconds(1);

std::string_view viewOf(const auto& bytes) { return {reinterpret_cast<const char*>(bytes.data()), bytes.size()}; }

std::int64_t nanosecondsOf(foundation::Date date) {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(date.time_since_epoch()).count();
}

void bindText(SqliteStatement& statement, int parameter, const std::optional<std::string>& text) {
  if (text) {
    statement.bindText(parameter, *text);
  } else {
    statement.bindNull(parameter);
  }
}

}  // namespace

// What a transaction changes outside the file; it counts only once the transaction is committed.
struct StoreWriter::Effects {
  std::map<foundation::Sha256, std::int64_t> blobs;
  WrittenValues written;
  References references;
  bool deletes = false;
};

StoreWriter::StoreWriter(SqliteDatabase database, std::shared_ptr<StoreBlobs> blobs, References references,
                         std::function<void()> finished)
    : m_database(std::move(database)),
      m_blobs(std::move(blobs)),
      m_finished(std::move(finished)),
      m_references(std::move(references)) {
  m_blobs->setReleaseHandler([this] {
    const std::lock_guard lock(m_mutex);
    m_mustClean = true;
    m_changed.notify_all();
  });
  m_thread = std::thread([this] {
    foundation::becomeBackgroundThread();
    run();
  });
}

StoreWriter::~StoreWriter() {
  {
    const std::lock_guard lock(m_mutex);
    m_isStopping = true;
    m_changed.notify_all();
  }
  m_thread.join();
  m_blobs->setReleaseHandler(nullptr);
}

void StoreWriter::write(Batch batch) {
  const std::lock_guard lock(m_mutex);
  m_batch = std::move(batch);
  m_changed.notify_all();
}

std::optional<Outcome> StoreWriter::takeOutcome() {
  const std::lock_guard lock(m_mutex);
  return std::exchange(m_outcome, std::nullopt);
}

Outcome StoreWriter::waitForOutcome() {
  std::unique_lock lock(m_mutex);
  m_changed.wait(lock, [this] { return m_outcome.has_value(); });
  return *std::exchange(m_outcome, std::nullopt);
}

Outcome StoreWriter::waitUntilClean() {
  std::unique_lock lock(m_mutex);
  const std::uint64_t request = ++m_cleaningRequests;
  m_mustClean = true;
  m_changed.notify_all();
  m_changed.wait(lock, [this, request] { return m_cleanedRequests >= request; });
  return *m_cleaned;
}

void StoreWriter::run() {
  sweepOrphans();
  std::unique_lock lock(m_mutex);
  for (;;) {
    m_changed.wait(lock, [this] { return m_isStopping || m_batch || m_mustClean; });
    if (m_batch) {
      performBatch(lock);
    } else {
      performCleaning(lock);
      if (m_isStopping) return;
    }
  }
}

void StoreWriter::performBatch(std::unique_lock<std::mutex>& lock) {
  auto batch = *std::exchange(m_batch, std::nullopt);
  lock.unlock();
  auto outcome = commit(batch);
  batch.clear();
  lock.lock();
  m_outcome = std::move(outcome);
  m_mustClean = true;
  m_changed.notify_all();
  lock.unlock();
  m_finished();
  lock.lock();
}

void StoreWriter::performCleaning(std::unique_lock<std::mutex>& lock) {
  const std::uint64_t requests = m_cleaningRequests;
  m_mustClean = false;
  lock.unlock();
  auto cleaned = clean();
  lock.lock();
  const bool isClean = cleaned.hasValue();
  m_cleaned = std::move(cleaned);
  m_cleanedRequests = requests;
  m_changed.notify_all();
  if (isClean) return;
  m_changed.wait_for(lock, cleaningRetryInterval, [this] { return m_isStopping || m_batch || m_mustClean; });
  m_mustClean = true;
}

Outcome StoreWriter::commit(const Batch& batch) {
  Effects effects;
  try {
    SqliteTransaction transaction(m_database);
    for (const auto& change : batch) {
      switch (change.kind) {
        case StoreChange::Kind::insert:
          insert(change, effects);
          break;
        case StoreChange::Kind::update:
          update(change);
          break;
        case StoreChange::Kind::remove:
          remove(change, effects);
          break;
      }
    }
    transaction.commit();
  } catch (const std::exception& failure) {
    return foundation::Error{failure.what()};
  }
  apply(effects);
  return foundation::success();
}

void StoreWriter::insert(const StoreChange& change, Effects& effects) {
  const auto& attributes = *change.attributes;
  auto item = m_database.prepare("INSERT INTO item VALUES(?, ?, ?, ?, ?, ?, ?)");
  item.bind(1, change.key).bindBlob(2, viewOf(attributes.id.bytes())).bindText(3, attributes.hashedData);
  bindText(item, 4, attributes.sourceAppBundleIdentifier);
  const auto& url = attributes.sourceAppBundleURL;
  bindText(item, 5, url ? std::optional(url->absoluteString()) : std::nullopt);
  item.bind(6, nanosecondsOf(attributes.creationDate)).bind(7, attributes.timesPasted).run();

  auto value = m_database.prepare("INSERT INTO payload VALUES(?, ?, ?, ?, ?, ?)");
  for (const auto& [type, data] : change.payload) {
    value.bind(1, change.key).bindText(2, type);
    for (const int parameter : {3, 4, 5, 6})
      value.bindNull(parameter);
    const auto bytes = data && data->size() <= Data::residentLimit ? data->bytes() : nullptr;
    if (bytes) {
      value.bindBlob(3, *bytes);
    } else if (const auto blob = data ? writeBlob(*data, effects) : std::nullopt) {
      value.bind(4, *blob).bind(5, static_cast<std::int64_t>(data->size())).bindBlob(6, viewOf(data->fingerprint()));
      ++effects.references[*blob];
    }
    value.run();
  }
}

// The number of the blob that holds the value: the one in which it rests already, or that of an equal value of this
// transaction, or a new one. Absent for a value that can't be read, which is then stored as such.
std::optional<std::int64_t> StoreWriter::writeBlob(const Data& data, Effects& effects) {
  const auto source = std::dynamic_pointer_cast<const StoredBlob>(data.source());
  if (source && source->isIn(*m_blobs)) return source->number();
  const auto known = effects.blobs.find(data.fingerprint());
  const std::int64_t blob = known == effects.blobs.end() ? m_nextBlob++ : known->second;
  if (known == effects.blobs.end() && !writeChunks(blob, data)) return std::nullopt;
  effects.blobs.emplace(data.fingerprint(), blob);
  effects.written.emplace_back(data, blob);
  return blob;
}

bool StoreWriter::writeChunks(std::int64_t blob, const Data& data) {
  auto chunk = m_database.prepare("INSERT INTO chunk VALUES(?, ?)");
  for (std::size_t sequence = 0; sequence < storeschema::chunkCount(data.size()); ++sequence) {
    const std::size_t offset = sequence * storeschema::chunkSize;
    const std::string bytes = data.part(offset, storeschema::chunkSize);
    if (bytes.size() != std::min(storeschema::chunkSize, data.size() - offset)) {
      m_perhapsUnused.insert(blob);
      return false;
    }
    chunk.bind(1, storeschema::chunkKey(blob, sequence)).bindBlob(2, bytes).run();
  }
  return true;
}

void StoreWriter::update(const StoreChange& change) {
  m_database.prepare("UPDATE item SET timesPasted = ? WHERE key = ?")
      .bind(1, change.attributes->timesPasted)
      .bind(2, change.key)
      .run();
}

void StoreWriter::remove(const StoreChange& change, Effects& effects) {
  effects.deletes = true;
  m_database.prepare("DELETE FROM item WHERE key = ?").bind(1, change.key).run();
  auto payload = m_database.prepare("DELETE FROM payload WHERE item = ? RETURNING blob");
  payload.bind(1, change.key);
  while (payload.step()) {
    if (!payload.isNull(0)) --effects.references[payload.integer(0)];
  }
}

void StoreWriter::apply(const Effects& effects) {
  for (const auto& [blob, change] : effects.references) {
    auto& count = m_references[blob];
    count += change;
    if (count <= 0) {
      m_references.erase(blob);
      m_perhapsUnused.insert(blob);
    }
  }
  std::map<std::int64_t, std::shared_ptr<const StoredBlob>> sources;
  for (const auto& [data, blob] : effects.written) {
    auto& source = sources[blob];
    if (!source) source = std::make_shared<StoredBlob>(m_blobs, blob, data.size());
    data.moveTo(source);
  }
  m_mustEmptyLog = m_mustEmptyLog || effects.deletes;
}

// A crash between a deletion and the clean-up after it leaves chunks that no record knows.
void StoreWriter::sweepOrphans() {
  try {
    auto next = m_database.prepare("SELECT key FROM chunk WHERE key >= ? ORDER BY key LIMIT 1");
    if (!m_references.empty()) m_nextBlob = m_references.rbegin()->first + 1;
    std::int64_t blob = 0;
    while (next.bind(1, storeschema::chunkKey(blob, 0)).step()) {
      blob = next.integer(0) / storeschema::chunksPerBlob;
      next.reset();
      if (!m_references.contains(blob)) m_perhapsUnused.insert(blob);
      m_nextBlob = std::max(m_nextBlob, ++blob);
    }
  } catch (const StoreFailure&) {
    // What can't be read now is swept at the next start.
  }
}

Outcome StoreWriter::clean() {
  for (const std::int64_t blob : m_blobs->takeReleased())
    m_perhapsUnused.insert(blob);
  try {
    deleteUnusedBlobs();
    if (m_mustEmptyLog) m_mustEmptyLog = !m_database.emptyLog();
  } catch (const StoreFailure& failure) {
    return foundation::Error{failure.what()};
  }
  if (m_mustEmptyLog) return foundation::Error{"a reader keeps the log from being emptied"};
  return foundation::success();
}

void StoreWriter::deleteUnusedBlobs() {
  std::erase_if(m_perhapsUnused,
                [this](std::int64_t blob) { return m_references.contains(blob) || m_blobs->isHeld(blob); });
  if (m_perhapsUnused.empty()) return;
  SqliteTransaction transaction(m_database);
  auto chunks = m_database.prepare("DELETE FROM chunk WHERE key BETWEEN ? AND ?");
  for (const std::int64_t blob : m_perhapsUnused) {
    chunks.bind(1, storeschema::chunkKey(blob, 0)).bind(2, storeschema::chunkKey(blob + 1, 0) - 1).run();
  }
  transaction.commit();
  m_perhapsUnused.clear();
  m_mustEmptyLog = true;
}

}  // namespace quillmonger
