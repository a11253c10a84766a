#pragma once

#include "Foundation/Subscription.h"
#include "LaunchAtLogin/Toggle.h"
#include "Quillmonger/settings/view/ToggleModel.h"

namespace quillmonger {

/// The switch of the start at login. It shows what the desktop holds. Main thread.
class LaunchAtLoginToggle final : public ToggleModel {
 public:
  /// `textKey`: that of the switch's title. `launchAtLogin` outlives this object.
  LaunchAtLoginToggle(const char* textKey, launchatlogin::LaunchAtLogin& launchAtLogin);

  [[nodiscard]] QString label() const override;
  [[nodiscard]] bool isOn() const override { return m_toggle.isOn(); }
  void flip() override { m_toggle.flip(); }
  /// Another program may have changed it.
  void refresh() { emit isOnChanged(); }

 private:
  launchatlogin::Toggle m_toggle;
  foundation::Subscription m_changes;
};

}  // namespace quillmonger
