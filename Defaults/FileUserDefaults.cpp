#include "Defaults/FileUserDefaults.h"

#include <utility>

#include "Foundation/Output.h"

namespace defaults {

FileUserDefaults::FileUserDefaults(const std::filesystem::path& path, foundation::RunLoop& runLoop)
    : FileUserDefaults(DefaultsFile(path), DefaultsFile(path).read(runLoop.date()), runLoop) {}

FileUserDefaults::FileUserDefaults(DefaultsFile file, DefaultsFile::Content content, foundation::RunLoop& runLoop)
    : UserDefaults(std::move(content.values)),
      m_file(std::move(file)),
      m_unknown(std::move(content.unknown)),
      m_runLoop(runLoop) {}

FileUserDefaults::~FileUserDefaults() { synchronize(); }

void FileUserDefaults::synchronize() {
  m_write.cancel();
  if (!m_isWritePending.exchange(false)) return;
  DefaultsFile::Content content{storedObjects(), {}};
  {
    const std::lock_guard lock(m_unknownMutex);
    content.unknown = m_unknown;
  }
  const auto outcome = m_file.write(content);
  if (!outcome) foundation::printLine("Defaults: can't write the settings file: ", outcome.error().message);
}

void FileUserDefaults::didChange(std::string_view name) {
  {
    const std::lock_guard lock(m_unknownMutex);
    if (const auto entry = m_unknown.find(name); entry != m_unknown.end()) m_unknown.erase(entry);
  }
  if (m_isWritePending.exchange(true)) return;
  m_runLoop.post([self = std::weak_ptr(m_self)] {
    const auto present = self.lock();
    if (!present) return;
    FileUserDefaults& store = **present;
    store.m_write = store.m_runLoop.after(writeDelay, [&store] { store.synchronize(); });
  });
}

}  // namespace defaults
