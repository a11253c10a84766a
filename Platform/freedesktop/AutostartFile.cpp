#include "Platform/freedesktop/AutostartFile.h"

#include <glib.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "Platform/freedesktop/DesktopEntry.h"
#include "Platform/freedesktop/ShowingDesktops.h"
#include "Platform/freedesktop/SmallFile.h"

namespace platform {

namespace {

constexpr const char* group = G_KEY_FILE_DESKTOP_GROUP;
// Desktops without a key of their own write "Hidden".
constexpr std::array switchKeys{"X-GNOME-Autostart-enabled", "X-MATE-Autostart-enabled"};

struct FreeText {
  void operator()(char* text) const { g_free(text); }
  void operator()(char** list) const { g_strfreev(list); }
  void operator()(GError* error) const { g_error_free(error); }
};

std::string valueOf(GKeyFile* file, const char* key) {
  const std::unique_ptr<char, FreeText> text(g_key_file_get_string(file, group, key, nullptr));
  return text == nullptr ? std::string() : std::string(text.get());
}

bool isFalse(GKeyFile* file, const char* key) { return valueOf(file, key) == "false"; }

// A path as one word of a command line.
std::string quoted(const std::string& path) {
  std::string word = "\"";
  for (const char character : path) {
    if (std::string_view("\"`$\\").find(character) != std::string_view::npos) word += '\\';
    word += character;
    if (character == '%') word += character;
  }
  return word + '"';
}

// At login, the fields are empty.
std::string withoutFieldCodes(std::string_view word) {
  std::string text;
  while (!word.empty()) {
    const auto sign = word.find('%');
    text += word.substr(0, sign);
    word.remove_prefix(std::min(sign, word.size()));
    if (word.starts_with("%%")) text += '%';
    word.remove_prefix(std::min<std::size_t>(2, word.size()));
  }
  return text;
}

std::vector<std::string> commandOf(GKeyFile* file) {
  char** words = nullptr;
  if (g_shell_parse_argv(valueOf(file, "Exec").c_str(), nullptr, &words, nullptr) == 0) return {};
  const std::unique_ptr<char*, FreeText> list(words);
  std::vector<std::string> command;
  for (char** word = words; *word != nullptr; ++word)
    command.push_back(withoutFieldCodes(*word));
  return command;
}

bool isRunnable(const std::string& program) {
  return std::unique_ptr<char, FreeText>(g_find_program_in_path(program.c_str())) != nullptr;
}

bool canBeRun(const std::vector<std::string>& command) { return !command.empty() && isRunnable(command.front()); }

std::vector<std::string> listOf(GKeyFile* file, const char* key) {
  std::size_t length = 0;
  const std::unique_ptr<char*, FreeText> list(g_key_file_get_string_list(file, group, key, &length, nullptr));
  return {list.get(), list.get() + length};
}

bool isForThisDesktop(GKeyFile* file) {
  const char* desktops = std::getenv("XDG_CURRENT_DESKTOP");
  return isShownByDesktop(partsOf(desktops == nullptr ? "" : desktops), listOf(file, "OnlyShowIn"),
                          listOf(file, "NotShowIn"));
}

bool isInstalled(GKeyFile* file) {
  const auto program = valueOf(file, "TryExec");
  return program.empty() || isRunnable(program);
}

}  // namespace

void AutostartFile::Free::operator()(GKeyFile* file) const { g_key_file_free(file); }

AutostartFile::AutostartFile(std::unique_ptr<GKeyFile, Free> file) : m_file(std::move(file)) {}
AutostartFile::AutostartFile(AutostartFile&&) noexcept = default;
AutostartFile::~AutostartFile() = default;

AutostartFile::AutostartFile(const std::filesystem::path& program) : m_file(g_key_file_new()) {
  const auto set = [this](const char* key, const char* value) {
    g_key_file_set_string(m_file.get(), group, key, value);
  };
  set("Type", "Application");
  set("Name", "Quillmonger");
  set("Comment", "Find everything you copied and paste it again");
  set("Exec", quoted(program.string()).c_str());
  set("Icon", "quillmonger");
}

std::optional<AutostartFile> AutostartFile::read(const std::filesystem::path& path) {
  const auto text = readSmallFile(path, DesktopEntry::sizeLimit);
  std::unique_ptr<GKeyFile, Free> file(g_key_file_new());
  const auto flags = static_cast<GKeyFileFlags>(G_KEY_FILE_KEEP_COMMENTS | G_KEY_FILE_KEEP_TRANSLATIONS);
  const bool isEntry = text && g_key_file_load_from_data(file.get(), text->data(), text->size(), flags, nullptr) != 0 &&
                       g_key_file_has_group(file.get(), group) != 0;
  return isEntry ? std::optional(AutostartFile(std::move(file))) : std::nullopt;
}

bool AutostartFile::isEnabled() const {
  for (const char* key : switchKeys) {
    if (isFalse(m_file.get(), key)) return false;
  }
  return valueOf(m_file.get(), "Hidden") != "true" && isForThisDesktop(m_file.get()) && isInstalled(m_file.get()) &&
         canBeRun(commandOf(m_file.get()));
}

void AutostartFile::enable() {
  const auto remove = [this](const char* key) { g_key_file_remove_key(m_file.get(), group, key, nullptr); };
  for (const char* key : switchKeys) {
    if (isFalse(m_file.get(), key)) remove(key);
  }
  remove("Hidden");
  if (!isInstalled(m_file.get())) remove("TryExec");
  if (isForThisDesktop(m_file.get())) return;
  remove("OnlyShowIn");
  remove("NotShowIn");
}

void AutostartFile::hide() { g_key_file_set_boolean(m_file.get(), group, "Hidden", TRUE); }

void AutostartFile::renewCommand(const std::filesystem::path& program) {
  const auto command = commandOf(m_file.get());
  const bool isProgramAlone =
      command.size() == 1 && std::filesystem::path(command.front()).filename() == program.filename();
  if (isProgramAlone || !canBeRun(command)) {
    g_key_file_set_string(m_file.get(), group, "Exec", quoted(program.string()).c_str());
  }
}

std::string AutostartFile::text() const {
  std::size_t length = 0;
  const std::unique_ptr<char, FreeText> text(g_key_file_to_data(m_file.get(), &length, nullptr));
  return {text.get(), length};
}

foundation::Outcome AutostartFile::write(const std::filesystem::path& path) const {
  std::error_code error;
  std::filesystem::create_directories(path.parent_path(), error);
  if (error) return foundation::Error{path.parent_path().string() + ": " + error.message()};
  // The link of someone who keeps settings elsewhere stays a link.
  const bool isLink = std::filesystem::is_symlink(std::filesystem::symlink_status(path, error));
  const auto target = isLink ? std::filesystem::weakly_canonical(path, error) : path;
  if (isLink && error) return foundation::Error{path.string() + ": " + error.message()};
  GError* failure = nullptr;
  const auto content = text();
  constexpr auto readableByAll = 0644;
  if (g_file_set_contents_full(target.c_str(), content.data(), static_cast<gssize>(content.size()),
                               G_FILE_SET_CONTENTS_CONSISTENT, readableByAll, &failure) != 0) {
    return foundation::success();
  }
  const std::unique_ptr<GError, FreeText> reason(failure);
  return foundation::Error{reason->message};
}

}  // namespace platform
