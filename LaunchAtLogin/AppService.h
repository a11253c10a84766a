#pragma once

#include "Foundation/Result.h"

namespace launchatlogin {

/// What the desktop does with the program when the user logs in. Main thread; each call reads or writes a small file at
/// most. The state is the desktop's: other programs may change it at any time.
class AppService {
 public:
  enum class Status {
    notRegistered,
    enabled  ///< it is started at login
  };

  AppService() = default;
  AppService(const AppService&) = delete;
  AppService& operator=(const AppService&) = delete;
  virtual ~AppService() = default;

  [[nodiscard]] virtual Status status() const = 0;
  /// Has the program started at login, from where it is now.
  virtual foundation::Outcome registerApp() = 0;
  /// The reverse. Succeeds as well when it was not registered.
  virtual foundation::Outcome unregisterApp() = 0;
};

}  // namespace launchatlogin
