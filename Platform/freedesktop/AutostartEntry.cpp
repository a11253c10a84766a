#include "Platform/freedesktop/AutostartEntry.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "Platform/freedesktop/AutostartFile.h"
#include "Platform/freedesktop/DesktopEntry.h"
#include "Platform/freedesktop/SmallFile.h"

namespace platform {

namespace {

// Something is there, be it a link that leads nowhere.
bool isThere(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::symlink_status(path, error).type() != std::filesystem::file_type::not_found;
}

foundation::Outcome removeFile(const std::filesystem::path& path) {
  std::error_code error;
  std::filesystem::remove(path, error);
  if (error) return foundation::Error{path.string() + ": " + error.message()};
  return foundation::success();
}

}  // namespace

AutostartEntry::AutostartEntry(std::vector<std::filesystem::path> configFolders, std::filesystem::path program)
    : m_paths(std::move(configFolders)), m_program(std::move(program)) {
  for (auto& path : m_paths)
    path /= "autostart/quillmonger.desktop";
}

// Where there is nothing that can be kept, a new one.
foundation::Result<AutostartFile> AutostartEntry::ownFile() const {
  if (auto file = AutostartFile::read(ownPath())) return *std::move(file);
  std::error_code error;
  const bool isAbsent = std::filesystem::status(ownPath(), error).type() == std::filesystem::file_type::not_found;
  if (isAbsent || readSmallFile(ownPath(), DesktopEntry::sizeLimit)) return AutostartFile(m_program);
  return foundation::Error{ownPath().string() + ": " + (error ? error.message() : "it can't be read")};
}

// The most important folder's entry counts alone.
launchatlogin::AppService::Status AutostartEntry::status() const {
  const auto path = std::ranges::find_if(m_paths, isThere);
  if (path == m_paths.end()) return Status::notRegistered;
  const auto file = AutostartFile::read(*path);
  return file && file->isEnabled() ? Status::enabled : Status::notRegistered;
}

foundation::Outcome AutostartEntry::registerApp() {
  auto file = ownFile();
  if (!file) return file.error();
  file.value().enable();
  file.value().renewCommand(m_program);
  return file.value().write(ownPath());
}

foundation::Outcome AutostartEntry::unregisterApp() {
  const bool isInSystem = std::any_of(m_paths.begin() + 1, m_paths.end(), isThere);
  if (!isThere(ownPath()) && !isInSystem) return foundation::success();
  auto file = ownFile();
  if (!file) return file.error();
  file.value().renewCommand(m_program);
  if (!isInSystem && file.value().text() == AutostartFile(m_program).text()) return removeFile(ownPath());
  file.value().hide();
  return file.value().write(ownPath());
}

}  // namespace platform
