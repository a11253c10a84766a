#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "Platform/freedesktop/DesktopEntries.h"
#include "Quillmonger/history/ApplicationNaming.h"

namespace platform {

/// The localized names of desktop entries. A search asks for one an item, so each is read once and kept; whether an
/// application was installed or removed is looked at no more than once in two seconds. Any thread.
class DesktopApplicationNaming final : public quillmonger::ApplicationNaming {
 public:
  using Clock = std::chrono::steady_clock;
  using Now = std::function<Clock::time_point()>;

  /// `entries` outlives this object.
  explicit DesktopApplicationNaming(const DesktopEntries& entries, Now now = Clock::now)
      : m_entries(entries), m_now(std::move(now)) {}

  [[nodiscard]] std::optional<std::string> displayName(const foundation::Url& bundleUrl) const override;

 private:
  void forgetIfChanged() const;

  const DesktopEntries& m_entries;
  Now m_now;
  mutable std::mutex m_mutex;
  mutable Clock::time_point m_nextLook;
  mutable std::shared_ptr<const DesktopEntries::List> m_list;
  mutable std::map<std::string, std::optional<std::string>, std::less<>> m_names;
};

}  // namespace platform
