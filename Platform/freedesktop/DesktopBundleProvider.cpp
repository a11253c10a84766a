#include "Platform/freedesktop/DesktopBundleProvider.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

namespace platform {

namespace {

constexpr std::size_t knownLimit = 256;

char lowerCase(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool isSameName(std::string_view left, std::string_view right) {
  return !left.empty() && std::ranges::equal(left, right, {}, lowerCase, lowerCase);
}

std::string_view lastPart(std::string_view id) {
  const auto point = id.rfind('.');
  return point == std::string_view::npos ? id : id.substr(point + 1);
}

std::string baseName(const std::string& path) { return std::filesystem::path(path).filename().string(); }

template <typename Predicate>
const DesktopEntry* first(const DesktopEntries::List& entries, Predicate isMatching) {
  // Of several entries for one program, the one that the user sees in the menus is meant.
  const auto isShown = [&](const DesktopEntry& entry) { return !entry.isNoDisplay && isMatching(entry); };
  auto found = std::ranges::find_if(entries, isShown);
  if (found == entries.end()) found = std::ranges::find_if(entries, isMatching);
  return found == entries.end() ? nullptr : &*found;
}

const DesktopEntry* bySandbox(const DesktopEntries::List& entries, const ProcessFacts& process) {
  const auto hasId = [&entries](std::string_view id) {
    return id.empty() ? nullptr : first(entries, [id](const DesktopEntry& entry) { return entry.id == id; });
  };
  if (const auto* entry = hasId(process.flatpakId)) return entry;
  if (const auto* entry = hasId(process.snapId)) return entry;
  if (process.snapId.empty()) return nullptr;
  const auto package = process.snapId.substr(0, process.snapId.find('_') + 1);
  return first(entries, [&package](const DesktopEntry& entry) { return entry.id.starts_with(package); });
}

const DesktopEntry* byWindowClass(const DesktopEntries::List& entries, const WindowIdentity& window) {
  const std::string_view names[] = {window.className, window.instanceName};
  for (const auto name : names) {
    const auto* entry = first(entries, [name](const auto& each) { return isSameName(each.startupWmClass, name); });
    if (entry != nullptr) return entry;
  }
  for (const auto name : names) {
    if (const auto* entry = first(entries, [name](const auto& each) { return isSameName(each.id, name); })) {
      return entry;
    }
  }
  for (const auto name : names) {
    if (const auto* entry = first(entries, [name](const auto& each) { return isSameName(lastPart(each.id), name); })) {
      return entry;
    }
  }
  return nullptr;
}

const DesktopEntry* byProgram(const DesktopEntries::List& entries, const ProcessFacts& process) {
  const auto byName = [&entries](const std::string& program) -> const DesktopEntry* {
    const auto name = baseName(program);
    if (name.empty()) return nullptr;
    return first(entries, [&name](const DesktopEntry& entry) { return baseName(entry.binary) == name; });
  };
  if (const auto* entry = byName(process.executable)) return entry;
  // "exe" of a script is its interpreter; the command line tells the script.
  return byName(programOf(process.arguments));
}

}  // namespace

const DesktopEntry* matchingEntry(const DesktopEntries::List& entries, const WindowIdentity& window,
                                  const std::optional<ProcessFacts>& process) {
  if (process.has_value()) {
    if (const auto* entry = bySandbox(entries, *process)) return entry;
  }
  if (const auto* entry = byWindowClass(entries, window)) return entry;
  return process.has_value() ? byProgram(entries, *process) : nullptr;
}

DesktopBundleProvider::DesktopBundleProvider(FrontWindow frontWindow, const DesktopEntries& entries)
    : m_frontWindow(std::move(frontWindow)), m_entries(entries) {}

quillmonger::BundleReference DesktopBundleProvider::frontmostBundle() const {
  const auto window = m_frontWindow();
  if (!window.has_value()) return {};
  auto list = m_entries.present();
  if (list != m_list || m_known.size() >= knownLimit) m_known.clear();
  m_list = std::move(list);
  const auto startTime = window->processId.has_value() ? ProcessFacts::readStartTime(*window->processId) : std::nullopt;
  const Case key(window->processId.value_or(0), startTime.value_or(0), window->instanceName, window->className);
  if (const auto known = m_known.find(key); known != m_known.end()) return known->second;
  const auto process = startTime.has_value() ? ProcessFacts::read(*window->processId) : std::nullopt;
  const auto* entry = matchingEntry(*m_list, *window, process);
  quillmonger::BundleReference bundle;
  if (entry != nullptr) bundle = {entry->id, entry->url};
  m_known.emplace(key, bundle);
  return bundle;
}

}  // namespace platform
