#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

/// An empty folder while it lives. TMPDIR, else the working folder, says which disk is measured.
class BenchFolder final {
 public:
  BenchFolder() {
    const char* const place = std::getenv("TMPDIR");
    m_path = std::filesystem::path(place != nullptr ? place : ".") / ("quillmonger-bench-" + std::to_string(getpid()));
    std::filesystem::remove_all(m_path);
  }
  BenchFolder(const BenchFolder&) = delete;
  BenchFolder& operator=(const BenchFolder&) = delete;
  ~BenchFolder() { std::filesystem::remove_all(m_path); }
  [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

 private:
  std::filesystem::path m_path;
};
