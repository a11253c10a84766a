#include "Quillmonger/capture/SqliteStoreContext.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <system_error>
#include <tuple>
#include <utility>

#include "Foundation/Output.h"
#include "Quillmonger/capture/StoreFolder.h"
#include "Quillmonger/capture/StoreSchema.h"

namespace quillmonger {

namespace {

constexpr int lockTimeoutMilliseconds = 2000;

bool isNotEmpty(const std::filesystem::path& file) {
  std::error_code error;
  const auto size = std::filesystem::file_size(file, error);
  return !error && size > 0;
}

void makeIfMissing(const StoreFolder& folder) {
  if (std::filesystem::exists(folder.file())) return;
  if (isNotEmpty(folder.log())) throw StoreFailure("the history's file is missing beside its log");
  storeschema::create(folder);
}

// From here on the file may be written.
void prepareForWriting(SqliteDatabase& database) {
  database.execute("PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA secure_delete=ON");
  database.execute("PRAGMA journal_size_limit=4194304");
  SqliteTransaction(database).commit();
  database.setOnClose(SqliteDatabase::OnClose::mergeLog);
  database.setLockTimeoutMilliseconds(lockTimeoutMilliseconds);
}

}  // namespace

struct SqliteStoreContext::Opening {
  explicit Opening(const std::filesystem::path& path) : folder(std::make_unique<StoreFolder>(path)) {
    makeIfMissing(*folder);
    storeschema::checkHeader(folder->file());
    const bool hasLog = isNotEmpty(folder->log());
    database = std::make_unique<SqliteDatabase>(folder->file());
    if (hasLog) database->setOnClose(SqliteDatabase::OnClose::leaveLog);
    storeschema::check(*database);
    SqliteDatabase reader(folder->file());
    if (hasLog) reader.setOnClose(SqliteDatabase::OnClose::leaveLog);
    blobs = std::make_shared<StoreBlobs>(std::move(reader));
    loaded = loadStore(*database, blobs);
    prepareForWriting(*database);
    folder->restrictFiles();
  }

  std::unique_ptr<StoreFolder> folder;
  std::unique_ptr<SqliteDatabase> database;
  std::shared_ptr<StoreBlobs> blobs;
  LoadedStore loaded;
};

foundation::Result<std::unique_ptr<SqliteStoreContext>> SqliteStoreContext::open(const std::filesystem::path& folder,
                                                                                 foundation::RunLoop& runLoop) {
  try {
    return std::unique_ptr<SqliteStoreContext>(new SqliteStoreContext(runLoop, Opening(folder)));
  } catch (const std::exception& failure) {
    return foundation::Error{failure.what()};
  }
}

SqliteStoreContext::SqliteStoreContext(foundation::RunLoop& runLoop, Opening opening)
    : m_runLoop(runLoop),
      m_folder(std::move(opening.folder)),
      m_blobs(std::move(opening.blobs)),
      m_nextKey(opening.loaded.greatestKey + 1) {
  m_byDigest.reserve(opening.loaded.entries.size());
  for (const auto& [key, record] : opening.loaded.entries)
    addToIndex(record, key);
  // On the writer's thread the context itself may not be touched: it can be gone by the time the main queue runs this.
  auto finished = [&queue = m_runLoop, self = std::weak_ptr(m_self)] {
    queue.post([self] {
      if (const auto context = self.lock()) (*context)->takeOutcome();
    });
  };
  m_writer = std::make_unique<StoreWriter>(std::move(*opening.database), m_blobs,
                                           std::move(opening.loaded.blobReferences), std::move(finished));
}

SqliteStoreContext::~SqliteStoreContext() {
  m_self.reset();
  m_blobs->close();  // first, so that the writer's connection is the last one and merges the log
  m_writer.reset();
  for (const auto& record : m_records)
    record->leaveStore();
}

bool SqliteStoreContext::ByAge::operator()(const Record& a, const Record& b) const {
  return std::tuple(a->creationDate(), a->storeKey()) < std::tuple(b->creationDate(), b->storeKey());
}

std::size_t SqliteStoreContext::DigestHash::operator()(std::string_view digest) const {
  return std::hash<std::string_view>()(digest);
}

foundation::Result<StoreContext::Record> SqliteStoreContext::fetchByDigest(std::string_view hashedData) {
  const auto found = m_byDigest.find(hashedData);
  return found == m_byDigest.end() ? nullptr : *find(**found);
}

// Only the rare copy that names the one it modifies is looked up in this way: no index is worth its memory.
foundation::Result<StoreContext::Record> SqliteStoreContext::fetchById(const foundation::Uuid& id) {
  const auto found = std::ranges::find_if(m_records, [&id](const Record& record) { return record->id() == id; });
  return found == m_records.end() ? nullptr : *found;
}

foundation::Result<std::vector<StoreContext::Record>> SqliteStoreContext::fetchAll() {
  return std::vector<Record>(m_records.begin(), m_records.end());
}

void SqliteStoreContext::insert(const Record& record) {
  if (record->isIn(*this)) return;
  addToIndex(record, m_nextKey++);
  note(record->storeKey(), {StoreChange::Kind::insert, record});
}

void SqliteStoreContext::remove(const Record& record) {
  if (!record->isIn(*this)) return;
  // The index may hold the reference that was passed. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const Record held = record;
  const auto [first, last] = m_byDigest.equal_range(held.get());
  m_byDigest.erase(std::find(first, last, held.get()));
  m_records.erase(find(*held));
  held->leaveStore();
  note(held->storeKey(), {StoreChange::Kind::remove, nullptr});
}

void SqliteStoreContext::recordChanged(const ClipboardItem& record) {
  note(record.storeKey(), {StoreChange::Kind::update, *find(record)});
}

void SqliteStoreContext::addToIndex(const Record& record, std::int64_t key) {
  record->enterStore(*this, key);
  m_records.insert(m_records.end(), record);
  m_byDigest.insert(record.get());
}

std::set<SqliteStoreContext::Record, SqliteStoreContext::ByAge>::const_iterator SqliteStoreContext::find(
    const ClipboardItem& record) const {
  // A reference without ownership, only to be compared.
  return m_records.find(Record(Record(), const_cast<ClipboardItem*>(&record)));
}

// One record has one pending change: what counts is what became of it since it was last on the disk.
void SqliteStoreContext::note(std::int64_t key, Pending change) {
  const auto [known, isNew] = m_pending.try_emplace(key, change);
  if (!isNew && change.kind == StoreChange::Kind::remove) {
    if (known->second.kind == StoreChange::Kind::insert) {
      m_pending.erase(known);
    } else {
      known->second = std::move(change);
    }
  }
  if (!m_autosave.isActive() && !m_pending.empty() && !m_isWriting) {
    m_autosave = m_runLoop.after(autosaveDelay, [this] { handOver(); });
  }
}

void SqliteStoreContext::handOver() {
  m_autosave.cancel();
  m_retry.cancel();
  if (m_isWriting || m_pending.empty()) return;
  StoreWriter::Batch batch;
  batch.reserve(m_pending.size());
  for (const auto& [key, pending] : m_pending) {
    auto& change = batch.emplace_back(StoreChange{key, pending.kind});
    if (pending.record) change.attributes = pending.record->attributes();
    if (pending.kind == StoreChange::Kind::insert) change.payload = pending.record->data();
  }
  m_underWay = std::exchange(m_pending, {});
  m_isWriting = true;
  m_writer->write(std::move(batch));
}

void SqliteStoreContext::takeOutcome() {
  if (!m_isWriting) return;
  auto outcome = m_writer->takeOutcome();
  if (!outcome) return;
  const auto settled = settle(*std::move(outcome));
  if (!settled) foundation::printLine("could not autosave: ", settled.error().message);
}

// After a failure the newer changes are put upon the older ones, as if those had never been handed over.
foundation::Outcome SqliteStoreContext::settle(foundation::Outcome outcome) {
  m_isWriting = false;
  PendingChanges newer;
  std::swap(newer, m_pending);
  if (!outcome) m_pending = std::exchange(m_underWay, {});
  m_underWay.clear();
  for (auto& [key, change] : newer)
    note(key, std::move(change));
  if (!outcome && !m_pending.empty()) m_retry = m_runLoop.every(retryInterval, [this] { handOver(); });
  return outcome;
}

foundation::Outcome SqliteStoreContext::save() {
  // A batch under way that fails comes back to the pending ones, and so does not count yet.
  if (m_isWriting) (void)settle(m_writer->waitForOutcome());
  handOver();
  if (m_isWriting) {
    auto outcome = settle(m_writer->waitForOutcome());
    if (!outcome) return outcome;
  }
  return m_writer->waitUntilClean();
}

}  // namespace quillmonger
