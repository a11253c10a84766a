#include "Quillmonger/capture/StoreLoader.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <optional>
#include <string_view>
#include <utility>

#include "Quillmonger/capture/StoreSchema.h"
#include "Quillmonger/capture/StoredBlob.h"

namespace quillmonger {

namespace {

using foundation::Data;

void require(bool condition, const char* what) {
  if (!condition) throw StoreFailure(std::string("the store is damaged: ") + what);
}

template <typename Bytes>
Bytes fixedBytes(std::string_view blob, const char* what) {
  Bytes bytes{};
  require(blob.size() == bytes.size(), what);
  std::memcpy(bytes.data(), blob.data(), bytes.size());
  return bytes;
}

bool isDigest(std::string_view text) {
  return text.size() == 32 &&
         std::ranges::all_of(text, [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
}

foundation::Date dateFrom(std::int64_t nanoseconds) {
  return foundation::Date(
      std::chrono::duration_cast<foundation::Date::duration>(std::chrono::nanoseconds(nanoseconds)));
}

// Walks both tables side by side, each once and in the order in which it lies in the file.
class Loader final {
 public:
  Loader(SqliteDatabase& database, const std::shared_ptr<StoreBlobs>& blobs)
      : m_blobs(blobs),
        m_items(database.prepare("SELECT key, id, hashedData, sourceAppBundleIdentifier, sourceAppBundleURL, "
                                 "creationDate, timesPasted FROM item ORDER BY key")),
        m_payloads(
            database.prepare("SELECT item, type, data, blob, size, fingerprint FROM payload ORDER BY item, type")),
        m_chunks(database.prepare("SELECT count(*), coalesce(sum(length(data)), 0) FROM chunk "
                                  "WHERE key BETWEEN ? AND ?")) {}

  LoadedStore load() {
    LoadedStore store;
    stepPayload();
    while (m_items.step()) {
      const std::int64_t key = m_items.integer(0);
      require(key > 0, "a record's key");
      auto payload = takePayload(key);
      store.entries.push_back({key, std::make_shared<ClipboardItem>(std::move(payload), attributes())});
      store.greatestKey = key;
    }
    require(!m_payloadKey, "a value without a record");
    store.blobReferences = std::move(m_references);
    // Most often they are written in the order in which they were made.
    const auto date = [](const auto& entry) { return entry.record->creationDate(); };
    if (!std::ranges::is_sorted(store.entries, {}, date)) std::ranges::stable_sort(store.entries, {}, date);
    return store;
  }

 private:
  ClipboardItem::Attributes attributes() const {
    const std::string_view digest = m_items.text(2);
    require(isDigest(digest), "a digest");
    std::optional<std::string> identifier;
    if (!m_items.isNull(3)) identifier = m_items.text(3);
    std::optional<foundation::Url> url;
    if (!m_items.isNull(4)) {
      url = foundation::Url::parse(m_items.text(4));
      require(url.has_value(), "a location");
    }
    return {foundation::Uuid(fixedBytes<foundation::Uuid::Bytes>(m_items.blob(1), "an identity")),
            std::string(digest),
            std::move(identifier),
            std::move(url),
            dateFrom(m_items.integer(5)),
            m_items.integer(6)};
  }

  Payload takePayload(std::int64_t key) {
    Payload payload;
    while (m_payloadKey && *m_payloadKey <= key) {
      require(*m_payloadKey == key, "a value without a record");
      payload.emplace_hint(payload.end(), m_payloads.text(1), value());
      stepPayload();
    }
    return payload;
  }

  void stepPayload() { m_payloadKey = m_payloads.step() ? std::optional(m_payloads.integer(0)) : std::nullopt; }

  std::optional<Data> value() {
    const bool isInline = !m_payloads.isNull(2);
    const bool isInBlob = !m_payloads.isNull(3);
    require(!(isInline && isInBlob), "a value in two places");
    if (isInBlob) return blobValue();
    if (!isInline) return std::nullopt;
    const std::string_view bytes = m_payloads.blob(2);
    require(bytes.size() <= Data::residentLimit, "a value's size");
    return Data(std::string(bytes));
  }

  Data blobValue() {
    const std::int64_t blob = m_payloads.integer(3);
    const std::int64_t size = m_payloads.integer(4);
    require(blob > 0 && blob <= storeschema::maximumBlob, "a value's place");
    require(size > static_cast<std::int64_t>(Data::residentLimit) &&
                static_cast<std::size_t>(size) <= storeschema::maximumBlobSize,
            "a value's size");
    const auto fingerprint = fixedBytes<foundation::Sha256>(m_payloads.blob(5), "a fingerprint");
    ++m_references[blob];
    const auto [known, isNew] = m_values.try_emplace(blob);
    if (isNew) {
      checkChunks(blob, static_cast<std::size_t>(size));
      auto source = std::make_shared<StoredBlob>(m_blobs, blob, static_cast<std::size_t>(size));
      known->second.emplace(static_cast<std::size_t>(size), fingerprint, std::move(source));
    }
    const Data& data = *known->second;
    require(data.size() == static_cast<std::size_t>(size) && data.fingerprint() == fingerprint, "a shared value");
    return data;
  }

  void checkChunks(std::int64_t blob, std::size_t size) {
    const std::size_t count = storeschema::chunkCount(size);
    m_chunks.bind(1, storeschema::chunkKey(blob, 0)).bind(2, storeschema::chunkKey(blob + 1, 0) - 1);
    require(m_chunks.step(), "a value's chunks");
    const bool isWhole = m_chunks.integer(0) == static_cast<std::int64_t>(count) &&
                         m_chunks.integer(1) == static_cast<std::int64_t>(size);
    m_chunks.reset();
    require(isWhole, "a value's chunks");
  }

  std::shared_ptr<StoreBlobs> m_blobs;
  SqliteStatement m_items;
  SqliteStatement m_payloads;
  SqliteStatement m_chunks;
  std::optional<std::int64_t> m_payloadKey;  // of the value that is read next
  std::map<std::int64_t, std::int64_t> m_references;
  std::map<std::int64_t, std::optional<Data>> m_values;
};

}  // namespace

LoadedStore loadStore(SqliteDatabase& database, const std::shared_ptr<StoreBlobs>& blobs) {
  return Loader(database, blobs).load();
}

}  // namespace quillmonger
