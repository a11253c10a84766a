#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "Quillmonger/capture/StoreContext.h"

namespace testsupport {

/// A store in memory, which remembers what was asked of it and whose fetches and saves can be made to fail.
class FakeStoreContext final : public quillmonger::StoreContext {
 public:
  foundation::Result<Record> fetchByDigest(std::string_view hashedData) override;
  foundation::Result<Record> fetchById(const foundation::Uuid& id) override;
  foundation::Result<std::vector<Record>> fetchAll() override;
  void insert(const Record& record) override;
  void remove(const Record& record) override;
  foundation::Outcome save() override;

  /// From now on; absent lets them succeed again.
  void failFetches(std::optional<foundation::Error> error) { m_fetchError = std::move(error); }
  void failSaves(std::optional<foundation::Error> error) { m_saveError = std::move(error); }

  /// In the order of the calls.
  [[nodiscard]] const std::vector<Record>& inserted() const { return m_inserted; }
  [[nodiscard]] const std::vector<Record>& removed() const { return m_removed; }
  [[nodiscard]] int saves() const { return m_saves; }

 private:
  template <typename Rule>
  foundation::Result<Record> first(const Rule& rule) const;

  std::vector<Record> m_records;
  std::vector<Record> m_inserted;
  std::vector<Record> m_removed;
  int m_saves = 0;
  std::optional<foundation::Error> m_fetchError;
  std::optional<foundation::Error> m_saveError;
};

}  // namespace testsupport
