#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "Quillmonger/capture/ClipboardItem.h"
#include "Quillmonger/capture/SqliteDatabase.h"
#include "Quillmonger/capture/StoreBlobs.h"

namespace quillmonger {

/// Everything in a store but the bytes of large values.
struct LoadedStore {
  struct Entry {
    std::int64_t key;
    std::shared_ptr<ClipboardItem> record;
  };
  /// Oldest first; records of one moment in the order of their keys.
  std::vector<Entry> entries;
  std::int64_t greatestKey = 0;
  /// How many payload values lie in each blob.
  std::map<std::int64_t, std::int64_t> blobReferences;
};

/// Reads the store. Throws `StoreFailure` when anything in it is not as this program writes it.
[[nodiscard]] LoadedStore loadStore(SqliteDatabase& database, const std::shared_ptr<StoreBlobs>& blobs);

}  // namespace quillmonger
