#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "Foundation/Result.h"
#include "Foundation/Uuid.h"
#include "Quillmonger/capture/ClipboardItem.h"

namespace quillmonger {

/// The one way to the stored records. Every fetch sees inserts, deletes and changes at once, whether they have reached
/// the disk or not; the context saves by itself soon after a change. One record is one object: fetching it twice gives
/// the same one. Main thread only; no operation but `save` waits for the disk.
class StoreContext {
 public:
  using Record = std::shared_ptr<ClipboardItem>;

  StoreContext() = default;
  StoreContext(const StoreContext&) = delete;
  StoreContext& operator=(const StoreContext&) = delete;
  virtual ~StoreContext() = default;

  /// At most one record with this digest; null when there is none.
  virtual foundation::Result<Record> fetchByDigest(std::string_view hashedData) = 0;
  /// At most one record with this identity; null when there is none.
  virtual foundation::Result<Record> fetchById(const foundation::Uuid& id) = 0;
  /// All records, oldest first by `creationDate`.
  virtual foundation::Result<std::vector<Record>> fetchAll() = 0;

  /// Takes a new record into the store. From then on its changes are saved too.
  virtual void insert(const Record& record) = 0;
  /// Takes a record out of the store, and its content out of the file. Nothing happens for an unknown record.
  virtual void remove(const Record& record) = 0;

  /// Brings everything to the disk before it returns.
  virtual foundation::Outcome save() = 0;
};

}  // namespace quillmonger
