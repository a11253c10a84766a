#pragma once

#include <filesystem>

namespace testsupport {

/// A new empty folder, removed with everything in it when this object goes.
class TemporaryFolder final {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

 private:
  std::filesystem::path m_path;
};

}  // namespace testsupport
