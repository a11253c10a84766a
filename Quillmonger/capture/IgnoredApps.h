#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Defaults/Defaults.h"
#include "Quillmonger/capture/ApplicationBundles.h"
#include "Quillmonger/capture/SystemApp.h"

namespace quillmonger {

/// The applications whose copies are not captured, as the setting `ignoredApps` names them. Read afresh at each call,
/// so that a changed setting and a removed application take effect at once. Main thread.
class IgnoredApps final {
 public:
  /// Both must outlive this object.
  IgnoredApps(const defaults::Defaults& settings, const ApplicationBundles& bundles);

  /// In the setting's order. An entry whose application is not there is left out, with a line on standard output.
  [[nodiscard]] std::vector<SystemApp> apps() const;
  [[nodiscard]] bool contains(std::string_view bundleIdentifier) const;

 private:
  [[nodiscard]] std::optional<SystemApp> decode(const std::string& text) const;

  const defaults::Defaults& m_settings;
  const ApplicationBundles& m_bundles;
};

}  // namespace quillmonger
