#pragma once

#include <string>
#include <vector>

#include "Quillmonger/input/PostEventAccess.h"

namespace testsupport {

/// A desktop that grants what the test says, and notes what it was asked.
class FakePostEventAccess final : public quillmonger::PostEventAccess {
 public:
  [[nodiscard]] bool isAllowed() const override { return m_isAllowed; }
  void request() override { ++m_requestCount; }
  [[nodiscard]] std::string settingsUrl() const override { return m_settingsUrl; }

  void setAllowed(bool isAllowed) { m_isAllowed = isAllowed; }
  void setSettingsUrl(std::string url) { m_settingsUrl = std::move(url); }
  [[nodiscard]] int requestCount() const { return m_requestCount; }

 private:
  bool m_isAllowed = true;
  int m_requestCount = 0;
  std::string m_settingsUrl = "settings:keys";
};

}  // namespace testsupport
