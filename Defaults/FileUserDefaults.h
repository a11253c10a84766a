#pragma once

#include <atomic>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include "Defaults/DefaultsFile.h"
#include "Defaults/UserDefaults.h"
#include "Foundation/RunLoop.h"
#include "Foundation/Subscription.h"

namespace defaults {

/// The store in a file (`DefaultsFile`), read once when it is made. Changes are written together, soon after the first
/// of them, and when this object goes. A write that fails is told in one line on standard output; the values stay in
/// memory and the next change tries again. Made, synchronized and destroyed on the main thread; changed on any.
class FileUserDefaults final : public UserDefaults {
 public:
  static constexpr foundation::Seconds writeDelay{0.05};

  /// `path`: the file; its folder is made when it is first written. `runLoop` must outlive this object.
  FileUserDefaults(const std::filesystem::path& path, foundation::RunLoop& runLoop);
  FileUserDefaults(const FileUserDefaults&) = delete;
  FileUserDefaults& operator=(const FileUserDefaults&) = delete;
  ~FileUserDefaults() override;

  /// Brings outstanding changes to the disk before it returns.
  void synchronize();

 protected:
  void didChange(std::string_view name) override;

 private:
  FileUserDefaults(DefaultsFile file, DefaultsFile::Content content, foundation::RunLoop& runLoop);

  DefaultsFile m_file;
  std::mutex m_unknownMutex;
  std::map<std::string, std::string, std::less<>> m_unknown;
  foundation::RunLoop& m_runLoop;
  std::atomic<bool> m_isWritePending = false;
  std::shared_ptr<FileUserDefaults*> m_self = std::make_shared<FileUserDefaults*>(this);
  foundation::Subscription m_write;
};

}  // namespace defaults
