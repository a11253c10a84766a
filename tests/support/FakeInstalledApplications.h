#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Quillmonger/settings/panes/InstalledApplications.h"

namespace testsupport {

/// The applications that the test installed.
class FakeInstalledApplications final : public quillmonger::InstalledApplications {
 public:
  [[nodiscard]] std::vector<quillmonger::InstalledApplication> applications() const override { return m_applications; }

  /// Its location is made of the identifier.
  void install(const std::string& identifier, std::string name, std::string genericName = {},
               std::vector<std::string> keywords = {}) {
    m_applications.push_back({foundation::Url::fromFilePath("/usr/share/applications/" + identifier + ".desktop"),
                              identifier, std::move(name), std::move(genericName), std::move(keywords)});
  }

 private:
  std::vector<quillmonger::InstalledApplication> m_applications;
};

}  // namespace testsupport
