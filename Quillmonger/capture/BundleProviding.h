#pragma once

#include <optional>
#include <string>

#include "Foundation/Url.h"

namespace quillmonger {

/// An application as records name it: its identifier and where it lies. Each can be absent on its own.
struct BundleReference {
  std::optional<std::string> identifier;
  std::optional<foundation::Url> url;
};

/// Tells which application is in front, that is, receives the key events. Main thread; asked once for each copy.
class BundleProviding {
 public:
  BundleProviding() = default;
  BundleProviding(const BundleProviding&) = delete;
  BundleProviding& operator=(const BundleProviding&) = delete;
  virtual ~BundleProviding() = default;

  /// The application in front when the pasteboard's present content came; both parts absent when it is unknown.
  [[nodiscard]] virtual BundleReference frontmostBundle() const = 0;
};

}  // namespace quillmonger
