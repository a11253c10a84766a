#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>

#include "Platform/freedesktop/DesktopEntries.h"
#include "Platform/freedesktop/ProcessFacts.h"
#include "Platform/freedesktop/WindowIdentity.h"
#include "Quillmonger/capture/BundleProviding.h"

namespace platform {

/// The installed application behind a window: what its sandbox says, else what its window class says, else what its
/// program is called. Null when none of them leads to an entry. Any thread.
[[nodiscard]] const DesktopEntry* matchingEntry(const DesktopEntries::List& entries, const WindowIdentity& window,
                                                const std::optional<ProcessFacts>& process);

/// Tells the application in front by the window in front. Remembers what it found for as long as the process lives and
/// no application is installed or removed. Main thread.
class DesktopBundleProvider final : public quillmonger::BundleProviding {
 public:
  using FrontWindow = std::function<std::optional<WindowIdentity>()>;

  /// `entries` must outlive this object.
  DesktopBundleProvider(FrontWindow frontWindow, const DesktopEntries& entries);

  [[nodiscard]] quillmonger::BundleReference frontmostBundle() const override;

 private:
  using Case = std::tuple<pid_t, std::uint64_t, std::string, std::string>;

  FrontWindow m_frontWindow;
  const DesktopEntries& m_entries;
  mutable std::shared_ptr<const DesktopEntries::List> m_list;
  mutable std::map<Case, quillmonger::BundleReference> m_known;
};

}  // namespace platform
