#pragma once

#include <string>

namespace quillmonger {

/// The desktop's own say on whether a program may press keys in other applications. Main thread.
class PostEventAccess {
 public:
  PostEventAccess() = default;
  PostEventAccess(const PostEventAccess&) = delete;
  PostEventAccess& operator=(const PostEventAccess&) = delete;
  virtual ~PostEventAccess() = default;

  /// Whether keys could be pressed at this moment.
  [[nodiscard]] virtual bool isAllowed() const = 0;
  /// Shows the desktop's own prompt, where it has one.
  virtual void request() = 0;
  /// Where the user grants it, as a URL; anything that is no URL opens nothing.
  [[nodiscard]] virtual std::string settingsUrl() const = 0;
};

}  // namespace quillmonger
