#include "Platform/freedesktop/DesktopApplicationBundles.h"

namespace platform {

std::optional<quillmonger::ApplicationBundle> DesktopApplicationBundles::bundleAt(const foundation::Url& url) const {
  const auto entry = m_entries.at(url);
  if (!entry.has_value()) return std::nullopt;
  quillmonger::ApplicationBundle bundle;
  bundle.identifier = entry->id;
  if (!entry->name.empty()) bundle.displayName = entry->name;
  return bundle;
}

}  // namespace platform
