#include "Platform/freedesktop/DesktopEntry.h"

#include <glib.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "Platform/freedesktop/SmallFile.h"

namespace platform {

namespace {

constexpr const char* group = G_KEY_FILE_DESKTOP_GROUP;

struct Free {
  void operator()(GKeyFile* file) const { g_key_file_free(file); }
  void operator()(char* text) const { g_free(text); }
  void operator()(char** list) const { g_strfreev(list); }
};
using KeyFile = std::unique_ptr<GKeyFile, Free>;

std::string textOf(GKeyFile* file, const char* key) {
  const std::unique_ptr<char, Free> text(g_key_file_get_string(file, group, key, nullptr));
  return text == nullptr ? std::string() : std::string(text.get());
}

// The text is valid UTF-8, and stays so.
std::string cut(std::string text) {
  if (text.size() <= DesktopEntry::textLimit) return text;
  std::size_t end = DesktopEntry::textLimit;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
    --end;
  text.resize(end);
  return text;
}

std::string localTextOf(GKeyFile* file, const char* key) {
  const std::unique_ptr<char, Free> text(g_key_file_get_locale_string(file, group, key, nullptr, nullptr));
  return text == nullptr ? std::string() : std::string(text.get());
}

bool flagOf(GKeyFile* file, const char* key) { return g_key_file_get_boolean(file, group, key, nullptr) != 0; }

std::vector<std::string> wordsOf(char** list) {
  std::vector<std::string> words;
  for (char** word = list; word != nullptr && *word != nullptr; ++word)
    words.emplace_back(*word);
  return words;
}

std::vector<std::string> listOf(GKeyFile* file, const char* key) {
  const std::unique_ptr<char*, Free> list(g_key_file_get_string_list(file, group, key, nullptr, nullptr));
  return wordsOf(list.get());
}

std::vector<std::string> keywordsOf(GKeyFile* file) {
  const std::unique_ptr<char*, Free> list(
      g_key_file_get_locale_string_list(file, group, "Keywords", nullptr, nullptr, nullptr));
  auto words = wordsOf(list.get());
  words.resize(std::min(words.size(), DesktopEntry::keywordLimit));
  std::ranges::transform(words, words.begin(), cut);
  return words;
}

std::string binaryOf(GKeyFile* file) {
  char** words = nullptr;
  if (g_shell_parse_argv(textOf(file, "Exec").c_str(), nullptr, &words, nullptr) == 0) return {};
  const std::unique_ptr<char*, Free> list(words);
  return programOf(wordsOf(list.get()));
}

std::string baseName(const std::string& path) { return std::filesystem::path(path).filename().string(); }

bool isInterpreter(std::string_view name) {
  constexpr std::array<std::string_view, 9> names{"sh",   "bash", "dash", "python", "perl",
                                                  "ruby", "node", "gjs",  "java"};
  // python3, python3.11
  const auto end = name.find_last_not_of("0123456789.");
  const auto stem = end == std::string_view::npos ? name : name.substr(0, end + 1);
  return std::ranges::find(names, stem) != names.end();
}

bool isSandboxLauncher(std::string_view name) { return name == "flatpak" || name == "snap" || name == "bwrap"; }

}  // namespace

std::string programOf(const std::vector<std::string>& arguments) {
  auto word = arguments.begin();
  if (word != arguments.end() && baseName(*word) == "env") {
    ++word;
    while (word != arguments.end() && (word->starts_with('-') || word->find('=') != std::string::npos))
      ++word;
  }
  if (word == arguments.end() || isSandboxLauncher(baseName(*word))) return {};
  if (!isInterpreter(baseName(*word))) return *word;
  const auto script = std::find_if(word + 1, arguments.end(), [](const auto& text) { return !text.starts_with('-'); });
  return script == arguments.end() ? *word : *script;
}

std::optional<DesktopEntry> DesktopEntry::read(const std::filesystem::path& path, std::string id) {
  const auto text = readSmallFile(path, sizeLimit);
  if (!text.has_value()) return std::nullopt;
  const KeyFile file(g_key_file_new());
  if (g_key_file_load_from_data(file.get(), text->data(), text->size(), G_KEY_FILE_NONE, nullptr) == 0) {
    return std::nullopt;
  }
  const bool isHidden = flagOf(file.get(), "Hidden");
  if (!isHidden && textOf(file.get(), "Type") != "Application") return std::nullopt;
  return DesktopEntry{.id = std::move(id),
                      .url = foundation::Url::fromFilePath(path.string()),
                      .name = cut(localTextOf(file.get(), "Name")),
                      .genericName = cut(localTextOf(file.get(), "GenericName")),
                      .keywords = keywordsOf(file.get()),
                      .icon = localTextOf(file.get(), "Icon"),
                      .binary = binaryOf(file.get()),
                      .tryExec = textOf(file.get(), "TryExec"),
                      .startupWmClass = textOf(file.get(), "StartupWMClass"),
                      .categories = listOf(file.get(), "Categories"),
                      .onlyShowIn = listOf(file.get(), "OnlyShowIn"),
                      .notShowIn = listOf(file.get(), "NotShowIn"),
                      .isNoDisplay = flagOf(file.get(), "NoDisplay"),
                      .isHidden = isHidden};
}

}  // namespace platform
