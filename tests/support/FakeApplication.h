#pragma once

#include <string>
#include <vector>

#include "Quillmonger/shell/windows/Application.h"

namespace testsupport {

/// A program without a desktop, that tells a log what was asked of it.
class FakeApplication final : public quillmonger::Application {
 public:
  using Log = std::vector<std::string>;

  /// `log` outlives this object.
  explicit FakeApplication(Log& log) : m_log(log) {}

  void setActivationPolicy(ActivationPolicy policy) override {
    m_log.emplace_back(policy == ActivationPolicy::regular ? "application regular" : "application accessory");
  }
  void activateIgnoringOtherApps() override { m_log.emplace_back("application activate"); }
  void hide() override { m_log.emplace_back("application hide"); }
  void terminate() override { m_log.emplace_back("application terminate"); }

 private:
  Log& m_log;
};

}  // namespace testsupport
