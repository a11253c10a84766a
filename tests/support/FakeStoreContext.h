#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Quillmonger/capture/StoreContext.h"

namespace testsupport {

/// A store in memory, whose operations fail when the test says so.
class FakeStoreContext final : public quillmonger::StoreContext {
 public:
  foundation::Result<Record> fetchByDigest(std::string_view hashedData) override;
  foundation::Result<Record> fetchById(const foundation::Uuid& id) override;
  foundation::Result<std::vector<Record>> fetchAll() override;
  void insert(const Record& record) override;
  void remove(const Record& record) override;
  foundation::Outcome save() override;

  /// Every fetch and save fails with `message` from now on; with none they succeed again.
  void failWith(std::optional<std::string> message) { m_failure = std::move(message); }
  /// Each fetch by identity fails with `message` from now on.
  void failFetchByIdWith(std::string message) { m_idFailure = std::move(message); }

  /// In the order of their insertion.
  [[nodiscard]] const std::vector<Record>& records() const { return m_records; }
  [[nodiscard]] int saveCount() const { return m_saveCount; }

 private:
  std::vector<Record> m_records;
  std::optional<std::string> m_failure;
  std::optional<std::string> m_idFailure;
  int m_saveCount = 0;
};

}  // namespace testsupport
