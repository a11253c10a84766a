#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "Foundation/RunLoop.h"
#include "Quillmonger/capture/StoreContext.h"
#include "Quillmonger/capture/StoreLoader.h"
#include "Quillmonger/capture/StoreWriter.h"

namespace quillmonger {

/// The history in an SQLite database, `history.sqlite`, in a folder of its own. All records are held in memory, their
/// large values on the disk alone. A tenth of a second after a change everything pending is handed to the writer's
/// thread; what can't be written stays pending and is tried again. Large values of its records can be read until the
/// context goes.
class SqliteStoreContext final : public StoreContext, private ClipboardItem::Store {
 public:
  static constexpr foundation::Seconds autosaveDelay{0.1};
  static constexpr foundation::Seconds retryInterval{5.0};

  /// Opens the store in `folder`, or makes it. A store that is damaged, foreign, newer or in use elsewhere is left
  /// exactly as it is.
  [[nodiscard]] static foundation::Result<std::unique_ptr<SqliteStoreContext>> open(const std::filesystem::path& folder,
                                                                                    foundation::RunLoop& runLoop);
  SqliteStoreContext(const SqliteStoreContext&) = delete;
  SqliteStoreContext& operator=(const SqliteStoreContext&) = delete;
  /// Finishes what was handed to the writer; what is still pending is lost unless `save` came before.
  ~SqliteStoreContext() override;

  foundation::Result<Record> fetchByDigest(std::string_view hashedData) override;
  foundation::Result<Record> fetchById(const foundation::Uuid& id) override;
  foundation::Result<std::vector<Record>> fetchAll() override;
  void insert(const Record& record) override;
  void remove(const Record& record) override;
  foundation::Outcome save() override;

 private:
  struct ByAge {
    bool operator()(const Record& a, const Record& b) const;
  };
  struct DigestHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view digest) const;
    std::size_t operator()(const ClipboardItem* record) const { return (*this)(record->hashedData()); }
  };
  struct SameDigest {
    using is_transparent = void;
    bool operator()(const ClipboardItem* a, const ClipboardItem* b) const { return a->hashedData() == b->hashedData(); }
    bool operator()(std::string_view a, const ClipboardItem* b) const { return a == b->hashedData(); }
    bool operator()(const ClipboardItem* a, std::string_view b) const { return a->hashedData() == b; }
  };
  struct Pending {
    StoreChange::Kind kind;
    Record record;  // null for a removal
  };
  using PendingChanges = std::map<std::int64_t, Pending>;
  struct Opening;

  SqliteStoreContext(foundation::RunLoop& runLoop, Opening opening);

  void recordChanged(const ClipboardItem& record) override;
  void addToIndex(const Record& record, std::int64_t key);
  [[nodiscard]] std::set<Record, ByAge>::const_iterator find(const ClipboardItem& record) const;

  void note(std::int64_t key, Pending change);
  void handOver();
  void takeOutcome();
  foundation::Outcome settle(foundation::Outcome outcome);

  foundation::RunLoop& m_runLoop;
  std::unique_ptr<class StoreFolder> m_folder;
  std::shared_ptr<StoreBlobs> m_blobs;

  std::set<Record, ByAge> m_records;
  std::unordered_multiset<const ClipboardItem*, DigestHash, SameDigest> m_byDigest;
  std::int64_t m_nextKey;

  PendingChanges m_pending;
  PendingChanges m_underWay;
  bool m_isWriting = false;

  std::unique_ptr<StoreWriter> m_writer;
  std::shared_ptr<SqliteStoreContext*> m_self = std::make_shared<SqliteStoreContext*>(this);
  foundation::Subscription m_autosave;
  foundation::Subscription m_retry;
};

}  // namespace quillmonger
