#include "Platform/freedesktop/SmallFile.h"

#include <errno.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>

namespace platform {

namespace {

std::optional<std::string> readAll(int file, std::size_t limit) {
  struct stat status {};
  if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  std::string text;
  std::array<char, 8192> buffer{};
  for (;;) {
    const ssize_t count = read(file, buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    if (count == 0) return text;
    text.append(buffer.data(), static_cast<std::size_t>(count));
    if (text.size() > limit) return std::nullopt;
  }
}

}  // namespace

std::optional<std::string> readSmallFile(const std::filesystem::path& path, std::size_t limit) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (file < 0) return std::nullopt;
  auto text = readAll(file, limit);
  close(file);
  return text;
}

}  // namespace platform
