#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Foundation/RunLoop.h"

namespace quillmonger {

/// A text, and the bytes that it lies in. Copying one copies no text.
struct SharedText {
  /// Keeps `view` alive; null for a text that needs no keeping.
  std::shared_ptr<const std::string> owner;
  std::string_view view;
};

/// What can be searched. Any thread may read it, several at a time.
class Searchable {
 public:
  Searchable() = default;
  Searchable(const Searchable&) = delete;
  Searchable& operator=(const Searchable&) = delete;
  virtual ~Searchable() = default;

  /// Computed anew at each call. Valid UTF-8.
  [[nodiscard]] virtual SharedText text() const = 0;
  /// The display name of the application that it came from.
  [[nodiscard]] virtual std::optional<std::string> appName() const = 0;
  /// Newer ones stand first.
  [[nodiscard]] virtual foundation::Date creationDate() const = 0;
};

}  // namespace quillmonger
