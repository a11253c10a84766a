#include "Quillmonger/capture/StoreBlobs.h"

#include <algorithm>
#include <utility>

#include "Quillmonger/capture/StoreSchema.h"

namespace quillmonger {

StoreBlobs::Reader::Reader(SqliteDatabase connection)
    : database(std::move(connection)), select(database.prepare("SELECT data FROM chunk WHERE key = ?")) {
  database.execute("PRAGMA query_only=ON; PRAGMA cache_size=-512");
}

StoreBlobs::StoreBlobs(SqliteDatabase reader) : m_reader(std::make_unique<Reader>(std::move(reader))) {}

std::optional<std::string> StoreBlobs::read(std::int64_t blob, std::size_t size, std::size_t offset,
                                            std::size_t length) {
  using storeschema::chunkSize;
  if (offset > size || length > size - offset) return std::nullopt;
  std::string bytes;
  bytes.reserve(length);
  while (bytes.size() < length) {
    const std::size_t position = offset + bytes.size();
    const std::size_t sequence = position / chunkSize;
    const std::size_t start = sequence * chunkSize;
    const std::size_t present = std::min(chunkSize, size - start);
    const std::size_t wanted = std::min(length - bytes.size(), start + present - position);
    if (!appendChunk(bytes, storeschema::chunkKey(blob, sequence), present, position - start, wanted)) {
      return std::nullopt;
    }
  }
  return bytes;
}

// Locked for each chunk alone, so that a reader of few bytes never waits for one of many.
bool StoreBlobs::appendChunk(std::string& bytes, std::int64_t key, std::size_t chunkSize, std::size_t offset,
                             std::size_t length) {
  const std::lock_guard lock(m_readerMutex);
  if (!m_reader) return false;
  auto& select = m_reader->select;
  try {
    const bool isWhole = select.bind(1, key).step() && select.blob(0).size() == chunkSize;
    if (isWhole) bytes += select.blob(0).substr(offset, length);
    select.reset();
    return isWhole;
  } catch (const StoreFailure&) {
    select.reset();
    return false;
  }
}

void StoreBlobs::hold(std::int64_t blob) {
  const std::lock_guard lock(m_holdMutex);
  m_held.insert(blob);
}

void StoreBlobs::release(std::int64_t blob) {
  const std::lock_guard lock(m_holdMutex);
  m_held.erase(blob);
  m_released.push_back(blob);
  if (m_notify) m_notify();
}

bool StoreBlobs::isHeld(std::int64_t blob) const {
  const std::lock_guard lock(m_holdMutex);
  return m_held.contains(blob);
}

void StoreBlobs::setReleaseHandler(std::function<void()> notify) {
  const std::lock_guard lock(m_holdMutex);
  m_notify = std::move(notify);
}

std::vector<std::int64_t> StoreBlobs::takeReleased() {
  const std::lock_guard lock(m_holdMutex);
  return std::exchange(m_released, {});
}

void StoreBlobs::close() {
  setReleaseHandler(nullptr);
  const std::lock_guard lock(m_readerMutex);
  m_reader.reset();
}

}  // namespace quillmonger
