#pragma once

#include <optional>
#include <string>

#include "Foundation/Url.h"

namespace quillmonger {

/// Tells what an application is called. Any thread, several at a time: the search asks beside the main thread, once
/// for each item, so an answer is expected to be at hand.
class ApplicationNaming {
 public:
  ApplicationNaming() = default;
  ApplicationNaming(const ApplicationNaming&) = delete;
  ApplicationNaming& operator=(const ApplicationNaming&) = delete;
  virtual ~ApplicationNaming() = default;

  /// In the user's language; absent when the application isn't there any more, or says no name.
  [[nodiscard]] virtual std::optional<std::string> displayName(const foundation::Url& bundleUrl) const = 0;
};

}  // namespace quillmonger
