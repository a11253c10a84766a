#include "Quillmonger/capture/StoreFolder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <system_error>
#include <utility>

#include "Quillmonger/capture/SqliteDatabase.h"

namespace quillmonger {

namespace {

[[noreturn]] void failWithErrno(const std::string& what) {
  throw StoreFailure(what + ": " + std::generic_category().message(errno));
}

void makePrivateFolder(const std::filesystem::path& path) {
  std::error_code error;
  std::filesystem::create_directories(path.parent_path(), error);
  if (mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST) failWithErrno("can't make the store's folder");
  if (chmod(path.c_str(), S_IRWXU) != 0) failWithErrno("can't keep the store's folder private");
}

int lock(const std::filesystem::path& file) {
  const int lock = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
  if (lock < 0) failWithErrno("can't open the store's lock");
  if (flock(lock, LOCK_EX | LOCK_NB) == 0) return lock;
  const int reason = errno;
  close(lock);
  errno = reason;
  failWithErrno(reason == EWOULDBLOCK ? "another process has the store" : "can't lock the store");
}

void synchronize(const std::filesystem::path& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) failWithErrno("can't open the store's folder");
  const bool isDone = fsync(descriptor) == 0;
  close(descriptor);
  if (!isDone) failWithErrno("can't bring the store's folder to the disk");
}

}  // namespace

// The lock is a file of its own: closing any descriptor of the database would end the library's locks on it.
StoreFolder::StoreFolder(std::filesystem::path path) : m_path(std::move(path)) {
  makePrivateFolder(m_path);
  m_lock = lock(m_path / "history.lock");
}

StoreFolder::~StoreFolder() { close(m_lock); }

std::filesystem::path StoreFolder::makeDraft() const {
  auto draft = m_path / "history.sqlite.new";
  std::error_code ignored;
  for (const char* suffix : {"", "-wal", "-shm", "-journal"}) {
    std::filesystem::remove(draft.string() + suffix, ignored);
  }
  const int descriptor = open(draft.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (descriptor < 0) failWithErrno("can't make the store's file");
  close(descriptor);
  return draft;
}

void StoreFolder::adoptDraft(const std::filesystem::path& draft) const {
  if (rename(draft.c_str(), file().c_str()) != 0) failWithErrno("can't put the store's file in its place");
  synchronize(m_path);
}

void StoreFolder::restrictFiles() const {
  for (const char* suffix : {"", "-wal", "-shm"}) {
    const std::string path = file().string() + suffix;
    if (chmod(path.c_str(), S_IRUSR | S_IWUSR) != 0 && errno != ENOENT) {
      failWithErrno("can't keep the store's files private");
    }
  }
}

}  // namespace quillmonger
