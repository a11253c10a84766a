#pragma once

#include <cstddef>
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
  /// `text`, if it has at most `limit` bytes; a longer one is not read for this.
  [[nodiscard]] virtual std::optional<SharedText> shortText(std::size_t limit) const = 0;
  /// The same for items of the same application.
  [[nodiscard]] virtual std::string appKey() const = 0;
  /// The display name of the application that it came from.
  [[nodiscard]] virtual std::optional<std::string> appName() const = 0;
  /// Newer ones stand first. Never changes.
  [[nodiscard]] virtual foundation::Date creationDate() const = 0;
};

}  // namespace quillmonger
