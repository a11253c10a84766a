#pragma once

#include <filesystem>
#include <memory>

namespace platform {

/// The claim to be the one Quillmonger of this user. The system takes it back when the process ends, however it ends.
class SingleInstance final {
 public:
  /// Null when another process holds the claim, or when `folder` is no private folder (`ensurePrivateFolder`), which
  /// is told in one line on standard output. Doesn't wait.
  [[nodiscard]] static std::unique_ptr<SingleInstance> claim(const std::filesystem::path& folder);

  explicit SingleInstance(int lock) : m_lock(lock) {}
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;
  ~SingleInstance();

 private:
  int m_lock;
};

}  // namespace platform
