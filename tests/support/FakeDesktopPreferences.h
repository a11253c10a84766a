#pragma once

#include <optional>

#include "Quillmonger/settings/DesktopPreferences.h"

namespace testsupport {

/// A desktop whose preferences the test sets.
class FakeDesktopPreferences final : public quillmonger::DesktopPreferences {
 public:
  [[nodiscard]] foundation::Published<std::optional<quillmonger::ColorScheme>>& colorScheme() override {
    return m_colorScheme;
  }
  [[nodiscard]] foundation::Published<bool>& reducesMotion() override { return m_reducesMotion; }

 private:
  foundation::Published<std::optional<quillmonger::ColorScheme>> m_colorScheme;
  foundation::Published<bool> m_reducesMotion{false};
};

}  // namespace testsupport
