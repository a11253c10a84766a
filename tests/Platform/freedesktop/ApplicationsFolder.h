#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/support/TemporaryFolder.h"

namespace testsupport {

/// A data folder with applications that a test installs.
class ApplicationsFolder final {
 public:
  [[nodiscard]] std::vector<std::filesystem::path> dataFolders() const { return {m_folder.path()}; }
  [[nodiscard]] std::filesystem::path path(const std::string& file) const {
    return m_folder.path() / "applications" / file;
  }

  /// `keys` are lines of the "Desktop Entry" group besides its type and name.
  void install(const std::string& file, const std::string& keys = {}) const {
    put(file, "[Desktop Entry]\nType=Application\nName=Name of " + file + "\n" + keys);
  }
  void put(const std::string& file, const std::string& text) const {
    std::filesystem::create_directories(path(file).parent_path());
    std::ofstream(path(file), std::ios::binary) << text;
  }

 private:
  TemporaryFolder m_folder;
};

}  // namespace testsupport
