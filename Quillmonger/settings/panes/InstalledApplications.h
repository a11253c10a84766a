#pragma once

#include <string>
#include <vector>

#include "Foundation/Url.h"

namespace quillmonger {

/// An application that the user can choose from a list.
struct InstalledApplication {
  foundation::Url url;
  std::string identifier;
  /// In the user's language, as the two below.
  std::string name;
  /// What kind of program it is, such as "Web Browser"; can be empty.
  std::string genericName;
  std::vector<std::string> keywords;
};

/// The applications that the desktop's menus show. Any thread.
class InstalledApplications {
 public:
  InstalledApplications() = default;
  InstalledApplications(const InstalledApplications&) = delete;
  InstalledApplications& operator=(const InstalledApplications&) = delete;
  virtual ~InstalledApplications() = default;

  /// One for each identifier, in no order. Waits for the disk, so not for the main thread.
  [[nodiscard]] virtual std::vector<InstalledApplication> applications() const = 0;
};

}  // namespace quillmonger
