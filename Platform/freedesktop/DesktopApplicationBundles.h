#pragma once

#include "Platform/freedesktop/DesktopEntries.h"
#include "Quillmonger/capture/ApplicationBundles.h"

namespace platform {

/// Applications are desktop entries: the identifier is the desktop-file ID, the location the entry's file.
class DesktopApplicationBundles final : public quillmonger::ApplicationBundles {
 public:
  /// `entries` must outlive this object.
  explicit DesktopApplicationBundles(const DesktopEntries& entries) : m_entries(entries) {}

  [[nodiscard]] std::optional<quillmonger::ApplicationBundle> bundleAt(const foundation::Url& url) const override;

 private:
  const DesktopEntries& m_entries;
};

}  // namespace platform
