#pragma once

#include <functional>
#include <optional>

#include "Foundation/Url.h"

namespace quillmonger {

/// Lets the user choose an installed application. Main thread.
class AppPicker {
 public:
  /// Absent when the user chose none.
  using Completion = std::function<void(const std::optional<foundation::Url>& location)>;

  AppPicker() = default;
  AppPicker(const AppPicker&) = delete;
  AppPicker& operator=(const AppPicker&) = delete;
  virtual ~AppPicker() = default;

  /// Returns at once. Calls `completion` once, in a later turn, unless this object goes before the user has decided.
  virtual void pickApplication(Completion completion) = 0;
};

}  // namespace quillmonger
