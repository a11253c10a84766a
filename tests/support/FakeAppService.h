#pragma once

#include <string>
#include <vector>

#include "LaunchAtLogin/AppService.h"

namespace testsupport {

/// A desktop that remembers whether the program is started at login, and that can refuse to change it.
class FakeAppService final : public launchatlogin::AppService {
 public:
  [[nodiscard]] Status status() const override { return m_status; }
  foundation::Outcome registerApp() override { return change("register", Status::enabled); }
  foundation::Outcome unregisterApp() override { return change("unregister", Status::notRegistered); }

  /// What each call fails with from now on; empty: none does.
  std::string failure;
  /// What was called, in its order.
  std::vector<std::string> calls;

 private:
  foundation::Outcome change(const char* call, Status status) {
    calls.emplace_back(call);
    if (!failure.empty()) return foundation::Error{failure};
    m_status = status;
    return foundation::success();
  }

  Status m_status = Status::notRegistered;
};

}  // namespace testsupport
