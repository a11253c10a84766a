#include "tests/support/FaultyFileSystem.h"

#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <new>
#include <sstream>

namespace testsupport {

struct FaultyFileSystem::State {
  sqlite3_vfs* real = sqlite3_vfs_find(nullptr);
  sqlite3_vfs shim{};

  mutable std::mutex mutex;
  std::int64_t freeBytes = std::numeric_limits<std::int64_t>::max();
  bool syncFails = false;
  std::map<std::string, std::string> synchronized;
};

namespace {

std::string contentOf(const std::string& path) {
  std::ostringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return std::move(content).str();
}

// The real file stands behind this head, in the memory that the library gives.
struct File {
  sqlite3_file base;
  FaultyFileSystem::State* state;
  const char* path;
};

sqlite3_file* real(sqlite3_file* file) { return reinterpret_cast<sqlite3_file*>(reinterpret_cast<File*>(file) + 1); }
FaultyFileSystem::State& stateOf(sqlite3_file* file) { return *reinterpret_cast<File*>(file)->state; }

int closeFile(sqlite3_file* f) { return real(f)->pMethods->xClose(real(f)); }
int readFile(sqlite3_file* f, void* to, int size, sqlite3_int64 at) {
  return real(f)->pMethods->xRead(real(f), to, size, at);
}
int writeFile(sqlite3_file* f, const void* from, int size, sqlite3_int64 at) {
  auto& state = stateOf(f);
  const std::lock_guard lock(state.mutex);
  if (state.freeBytes < size) return SQLITE_FULL;
  state.freeBytes -= size;
  return real(f)->pMethods->xWrite(real(f), from, size, at);
}
int truncateFile(sqlite3_file* f, sqlite3_int64 size) { return real(f)->pMethods->xTruncate(real(f), size); }
int syncFile(sqlite3_file* f, int flags) {
  auto& state = stateOf(f);
  const std::lock_guard lock(state.mutex);
  if (state.syncFails) return SQLITE_IOERR_FSYNC;
  const char* path = reinterpret_cast<File*>(f)->path;
  if (path != nullptr) state.synchronized[path] = contentOf(path);
  return real(f)->pMethods->xSync(real(f), flags);
}
int fileSize(sqlite3_file* f, sqlite3_int64* size) { return real(f)->pMethods->xFileSize(real(f), size); }
int lockFile(sqlite3_file* f, int level) { return real(f)->pMethods->xLock(real(f), level); }
int unlockFile(sqlite3_file* f, int level) { return real(f)->pMethods->xUnlock(real(f), level); }
int checkLock(sqlite3_file* f, int* result) { return real(f)->pMethods->xCheckReservedLock(real(f), result); }
int controlFile(sqlite3_file* f, int operation, void* argument) {
  return real(f)->pMethods->xFileControl(real(f), operation, argument);
}
int sectorSize(sqlite3_file* f) { return real(f)->pMethods->xSectorSize(real(f)); }
int deviceFlags(sqlite3_file* f) { return real(f)->pMethods->xDeviceCharacteristics(real(f)); }
int mapShared(sqlite3_file* f, int region, int size, int extend, void volatile** memory) {
  return real(f)->pMethods->xShmMap(real(f), region, size, extend, memory);
}
int lockShared(sqlite3_file* f, int offset, int count, int flags) {
  return real(f)->pMethods->xShmLock(real(f), offset, count, flags);
}
void barrierShared(sqlite3_file* f) { real(f)->pMethods->xShmBarrier(real(f)); }
int unmapShared(sqlite3_file* f, int remove) { return real(f)->pMethods->xShmUnmap(real(f), remove); }

const sqlite3_io_methods methods = {2,           closeFile, readFile,   writeFile,     truncateFile, syncFile,
                                    fileSize,    lockFile,  unlockFile, checkLock,     controlFile,  sectorSize,
                                    deviceFlags, mapShared, lockShared, barrierShared, unmapShared,  nullptr,
                                    nullptr};

FaultyFileSystem::State& stateOf(sqlite3_vfs* vfs) { return *static_cast<FaultyFileSystem::State*>(vfs->pAppData); }

int openFile(sqlite3_vfs* vfs, const char* path, sqlite3_file* f, int flags, int* openedFlags) {
  auto& state = stateOf(vfs);
  auto* file = new (f) File{{nullptr}, &state, path};
  // What lies there before is taken to be on the disk.
  const std::lock_guard lock(state.mutex);
  if (path != nullptr) state.synchronized.try_emplace(path, contentOf(path));
  const int code = state.real->xOpen(state.real, path, real(f), flags, openedFlags);
  file->base.pMethods = real(f)->pMethods != nullptr ? &methods : nullptr;
  return code;
}

int deleteFile(sqlite3_vfs* vfs, const char* path, int syncFolder) {
  auto& state = stateOf(vfs);
  const std::lock_guard lock(state.mutex);
  state.synchronized.erase(path);
  return state.real->xDelete(state.real, path, syncFolder);
}

}  // namespace

FaultyFileSystem::FaultyFileSystem() : m_state(std::make_shared<State>()) {
  m_state->shim = *m_state->real;
  m_state->shim.zName = "faulty";
  m_state->shim.szOsFile = static_cast<int>(sizeof(File)) + m_state->real->szOsFile;
  m_state->shim.pAppData = m_state.get();
  m_state->shim.pNext = nullptr;
  m_state->shim.xOpen = openFile;
  m_state->shim.xDelete = deleteFile;
  // What else the real file system does needs only its own description.
  m_state->shim.xAccess = [](sqlite3_vfs* vfs, const char* path, int flags, int* result) {
    return stateOf(vfs).real->xAccess(stateOf(vfs).real, path, flags, result);
  };
  m_state->shim.xFullPathname = [](sqlite3_vfs* vfs, const char* path, int size, char* result) {
    return stateOf(vfs).real->xFullPathname(stateOf(vfs).real, path, size, result);
  };
  sqlite3_vfs_register(&m_state->shim, 1);
}

FaultyFileSystem::~FaultyFileSystem() {
  sqlite3_vfs_unregister(&m_state->shim);
  sqlite3_vfs_register(m_state->real, 1);
}

void FaultyFileSystem::fillUpAfter(std::int64_t bytes) {
  const std::lock_guard lock(m_state->mutex);
  m_state->freeBytes = bytes;
}

void FaultyFileSystem::setSyncFails(bool fails) {
  const std::lock_guard lock(m_state->mutex);
  m_state->syncFails = fails;
}

void FaultyFileSystem::repair() {
  fillUpAfter(std::numeric_limits<std::int64_t>::max());
  setSyncFails(false);
}

void FaultyFileSystem::writeStateAfterPowerCut(const std::string& folder) const {
  const std::lock_guard lock(m_state->mutex);
  for (const auto& [path, content] : m_state->synchronized) {
    const auto target = std::filesystem::path(folder) / std::filesystem::path(path).filename();
    if (content.empty()) continue;
    std::ofstream(target, std::ios::binary) << content;
    std::filesystem::permissions(target, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  }
}

}  // namespace testsupport
