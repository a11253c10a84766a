#include "Platform/freedesktop/SingleInstance.h"

#include <errno.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Foundation/Output.h"
#include "Platform/freedesktop/XdgFolders.h"

namespace platform {

std::unique_ptr<SingleInstance> SingleInstance::claim(const std::filesystem::path& folder) {
  if (const auto outcome = ensurePrivateFolder(folder); !outcome) {
    foundation::printLine("SingleInstance: ", outcome.error().message);
    return nullptr;
  }
  const auto path = folder / "lock";
  const int lock = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, S_IRUSR | S_IWUSR);
  if (lock < 0) {
    foundation::printLine("SingleInstance: can't open ", path.string());
    return nullptr;
  }
  while (flock(lock, LOCK_EX | LOCK_NB) != 0) {
    if (errno == EINTR) continue;
    close(lock);
    return nullptr;
  }
  return std::make_unique<SingleInstance>(lock);
}

SingleInstance::~SingleInstance() { close(m_lock); }

}  // namespace platform
