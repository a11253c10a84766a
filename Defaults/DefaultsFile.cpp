#include "Defaults/DefaultsFile.h"

#include <errno.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <system_error>

#include "Foundation/Output.h"

namespace defaults {

namespace {

class Descriptor final {
 public:
  explicit Descriptor(int value) : m_value(value) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (m_value >= 0) close(m_value);
  }
  [[nodiscard]] int value() const { return m_value; }
  [[nodiscard]] bool isOpen() const { return m_value >= 0; }

 private:
  int m_value;
};

foundation::Error systemError(std::string_view what) {
  return {std::string(what) + ": " + std::generic_category().message(errno)};
}

std::filesystem::path withLinksFollowed(const std::filesystem::path& path) {
  std::error_code error;
  if (!std::filesystem::is_symlink(path, error)) return path;
  const auto target = std::filesystem::weakly_canonical(path, error);
  return error ? path : target;
}

// One byte more than the limit tells a file that is too large.
std::optional<std::string> readBounded(int descriptor, std::size_t limit) {
  std::string text;
  std::array<char, 16384> buffer{};
  while (text.size() <= limit) {
    const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    if (count == 0) break;
    text.append(buffer.data(), static_cast<std::size_t>(count));
  }
  return text;
}

bool writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = ::write(descriptor, text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

void makePrivateFolder(const std::filesystem::path& folder) {
  if (folder.empty() || mkdir(folder.c_str(), S_IRWXU) == 0 || errno != ENOENT || !folder.has_relative_path()) return;
  makePrivateFolder(folder.parent_path());
  mkdir(folder.c_str(), S_IRWXU);
}

std::string stamp(foundation::Date date) {
  const time_t seconds = std::chrono::system_clock::to_time_t(date);
  tm parts{};
  gmtime_r(&seconds, &parts);
  std::array<char, 32> text{};
  const std::size_t length = strftime(text.data(), text.size(), "%Y-%m-%dT%H%M%SZ", &parts);
  return {text.data(), length};
}

}  // namespace

DefaultsFile::DefaultsFile(const std::filesystem::path& path) : m_path(withLinksFollowed(path)) {}

DefaultsFile::Content DefaultsFile::read(foundation::Date now) const {
  // Without O_NONBLOCK, a pipe of this name would hold up the program for ever.
  const Descriptor file(open(m_path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file.isOpen()) {
    if (errno != ENOENT) foundation::printLine("Defaults: can't open the settings file: ", systemError("open").message);
    return {};
  }
  const auto text = readBounded(file.value(), sizeLimit);
  if (text.has_value()) {
    if (auto content = decode(*text)) return *std::move(content);
  }
  setAside(now);
  return {};
}

void DefaultsFile::setAside(foundation::Date now) const {
  const std::string base = m_path.string() + ".damaged-" + stamp(now);
  std::string name = base;
  // link, unlike rename, never takes the place of an existing file.
  for (int number = 2; link(m_path.c_str(), name.c_str()) != 0; ++number) {
    if (errno != EEXIST || number > 1000) {
      foundation::printLine("Defaults: can't set the damaged settings file aside: ", systemError("link").message);
      return;
    }
    name = base + "-" + std::to_string(number);
  }
  unlink(m_path.c_str());
  foundation::printLine("Defaults: the settings file is damaged; set aside as ", name);
}

foundation::Outcome DefaultsFile::write(const Content& content) const {
  const auto text = encode(content);
  if (text.size() > sizeLimit) return foundation::Error{"the settings are too large"};
  const auto folder = m_path.parent_path();
  makePrivateFolder(folder);
  std::string temporary = m_path.string() + ".XXXXXX";
  const Descriptor file(mkostemp(temporary.data(), O_CLOEXEC));
  if (!file.isOpen()) return systemError("create");
  if (!writeAll(file.value(), text) || fsync(file.value()) != 0 || rename(temporary.c_str(), m_path.c_str()) != 0) {
    const auto error = systemError("write");
    unlink(temporary.c_str());
    return error;
  }
  const Descriptor directory(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!directory.isOpen() || fsync(directory.value()) != 0) return systemError("sync folder");
  return foundation::success();
}

}  // namespace defaults
