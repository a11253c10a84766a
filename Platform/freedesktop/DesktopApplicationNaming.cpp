#include "Platform/freedesktop/DesktopApplicationNaming.h"

namespace platform {

std::optional<std::string> DesktopApplicationNaming::displayName(const foundation::Url& bundleUrl) const {
  const std::lock_guard lock(m_mutex);
  forgetIfChanged();
  const auto known = m_names.find(bundleUrl.absoluteString());
  if (known != m_names.end()) return known->second;
  const auto entry = m_entries.at(bundleUrl);
  auto name = entry ? std::optional(entry->name) : std::nullopt;
  return m_names.emplace(bundleUrl.absoluteString(), std::move(name)).first->second;
}

void DesktopApplicationNaming::forgetIfChanged() const {
  const auto now = m_now();
  if (now < m_nextLook) return;
  m_nextLook = now + std::chrono::seconds(2);
  auto list = m_entries.present();
  if (list != m_list) m_names.clear();
  m_list = std::move(list);
}

}  // namespace platform
