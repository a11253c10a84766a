#pragma once

#include <string>

#include "Foundation/Url.h"
#include "Foundation/Uuid.h"

namespace quillmonger {

/// One ignored application. Any thread.
struct SystemApp {
  /// Names a row of a list and nothing else: new each time a value is made.
  foundation::Uuid id;
  /// Empty when the application says none.
  std::string name;
  /// The path of `url`, decoded, without a closing slash.
  std::string relativePath;
  std::string bundleIdentifier;
  foundation::Url url;

  /// With a new `id` and the path of `url`.
  [[nodiscard]] static SystemApp make(std::string name, std::string bundleIdentifier, foundation::Url url);

  /// By identifier alone.
  bool operator==(const SystemApp& other) const { return bundleIdentifier == other.bundleIdentifier; }
};

}  // namespace quillmonger
