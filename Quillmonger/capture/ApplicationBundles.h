#pragma once

#include <optional>
#include <string>

#include "Foundation/Url.h"

namespace quillmonger {

/// What an installed application says of itself.
struct ApplicationBundle {
  std::optional<std::string> identifier;
  /// In the user's language.
  std::optional<std::string> displayName;
};

/// The installed applications, by where they lie. Main thread.
class ApplicationBundles {
 public:
  ApplicationBundles() = default;
  ApplicationBundles(const ApplicationBundles&) = delete;
  ApplicationBundles& operator=(const ApplicationBundles&) = delete;
  virtual ~ApplicationBundles() = default;

  /// Read anew at each call; absent when no application lies there.
  [[nodiscard]] virtual std::optional<ApplicationBundle> bundleAt(const foundation::Url& url) const = 0;
};

}  // namespace quillmonger
