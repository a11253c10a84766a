#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "Quillmonger/capture/ApplicationBundles.h"

namespace testsupport {

/// Knows the applications that the test installed.
class FakeApplicationBundles final : public quillmonger::ApplicationBundles {
 public:
  [[nodiscard]] std::optional<quillmonger::ApplicationBundle> bundleAt(const foundation::Url& url) const override {
    const auto found = m_bundles.find(url.absoluteString());
    return found == m_bundles.end() ? std::nullopt : std::optional(found->second);
  }
  void add(std::string url, quillmonger::ApplicationBundle bundle) {
    m_bundles.insert_or_assign(std::move(url), std::move(bundle));
  }
  void remove(const std::string& url) { m_bundles.erase(url); }

 private:
  std::map<std::string, quillmonger::ApplicationBundle> m_bundles;
};

}  // namespace testsupport
