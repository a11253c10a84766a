#include "Platform/freedesktop/ProcessFacts.h"

#include <errno.h>
#include <fcntl.h>
#include <glib.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <memory>
#include <system_error>

#include "Platform/freedesktop/SmallFile.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t fileLimit = std::size_t{64} << 10U;
constexpr std::size_t argumentLimit = 8;

// A command line can be of any length; its beginning is enough.
std::string beginningOf(const fs::path& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return {};
  std::array<char, 4096> buffer{};
  const ssize_t count = read(file, buffer.data(), buffer.size());
  close(file);
  return count > 0 ? std::string(buffer.data(), static_cast<std::size_t>(count)) : std::string();
}

std::vector<std::string> argumentsOf(std::string_view text) {
  std::vector<std::string> arguments;
  while (!text.empty() && arguments.size() < argumentLimit) {
    const auto end = std::min(text.find('\0'), text.size());
    arguments.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return arguments;
}

std::string flatpakIdOf(const fs::path& info) {
  const auto text = readSmallFile(info, fileLimit);
  if (!text.has_value()) return {};
  const std::unique_ptr<GKeyFile, decltype(&g_key_file_free)> file(g_key_file_new(), &g_key_file_free);
  if (g_key_file_load_from_data(file.get(), text->data(), text->size(), G_KEY_FILE_NONE, nullptr) == 0) return {};
  const std::unique_ptr<char, decltype(&g_free)> name(g_key_file_get_string(file.get(), "Application", "name", nullptr),
                                                      &g_free);
  return name == nullptr ? std::string() : std::string(name.get());
}

fs::path folderOf(pid_t process, const fs::path& proc) { return proc / std::to_string(process); }

}  // namespace

std::optional<std::uint64_t> ProcessFacts::readStartTime(pid_t process, const fs::path& proc) {
  const auto text = readSmallFile(folderOf(process, proc) / "stat", fileLimit);
  if (!text.has_value()) return std::nullopt;
  // The second field is the program's name in parentheses, which may hold anything; the start time is the 22nd.
  std::size_t position = text->rfind(')');
  for (int field = 2; field < 22 && position != std::string::npos; ++field)
    position = text->find(' ', position + 1);
  if (position == std::string::npos) return std::nullopt;
  std::uint64_t time = 0;
  const auto result = std::from_chars(text->data() + position + 1, text->data() + text->size(), time);
  return result.ec == std::errc() ? std::optional(time) : std::nullopt;
}

std::optional<ProcessFacts> ProcessFacts::read(pid_t process, const fs::path& proc) {
  const auto startTime = readStartTime(process, proc);
  if (!startTime.has_value()) return std::nullopt;
  const auto folder = folderOf(process, proc);
  ProcessFacts facts;
  facts.startTime = *startTime;
  std::error_code error;
  const auto executable = fs::read_symlink(folder / "exe", error);
  if (!error) facts.executable = executable.string();
  facts.arguments = argumentsOf(beginningOf(folder / "cmdline"));
  facts.flatpakId = flatpakIdOf(folder / "root/.flatpak-info");
  facts.snapId = snapIdOfCgroup(readSmallFile(folder / "cgroup", fileLimit).value_or(""));
  return facts;
}

std::string snapIdOfCgroup(std::string_view text) {
  // .../snap.firefox.firefox.7f0e.scope or .../snap.firefox.firefox-UUID.scope
  constexpr std::string_view mark = "/snap.";
  const auto start = text.find(mark);
  if (start == std::string_view::npos) return {};
  auto rest = text.substr(start + mark.size());
  rest = rest.substr(0, rest.find_first_of("/\n"));
  const auto nameEnd = rest.find('.');
  if (nameEnd == std::string_view::npos) return {};
  const auto application = rest.substr(nameEnd + 1);
  const auto applicationEnd = application.find('.');
  if (applicationEnd == std::string_view::npos) return {};
  auto id = std::string(rest.substr(0, nameEnd)) + "_";
  constexpr std::size_t uuidLength = 36;
  auto word = application.substr(0, applicationEnd);
  const bool hasUuid = word.size() > uuidLength + 1 && word[word.size() - uuidLength - 1] == '-' &&
                       word[word.size() - uuidLength + 8] == '-';
  if (hasUuid) word.remove_suffix(uuidLength + 1);
  return id.append(word);
}

}  // namespace platform
