#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "Quillmonger/history/ApplicationNaming.h"

namespace testsupport {

/// Knows the applications that the test named. Not changed while a search runs.
class FakeApplicationNaming final : public quillmonger::ApplicationNaming {
 public:
  [[nodiscard]] std::optional<std::string> displayName(const foundation::Url& bundleUrl) const override {
    const auto found = m_names.find(bundleUrl.absoluteString());
    return found == m_names.end() ? std::nullopt : std::optional(found->second);
  }
  void setDisplayName(const foundation::Url& bundleUrl, std::string name) {
    m_names.insert_or_assign(bundleUrl.absoluteString(), std::move(name));
  }
  /// As if the application had been removed.
  void forget(const foundation::Url& bundleUrl) { m_names.erase(bundleUrl.absoluteString()); }

 private:
  std::map<std::string, std::string> m_names;
};

}  // namespace testsupport
