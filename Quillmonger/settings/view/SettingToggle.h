#pragma once

#include "Defaults/Toggle.h"
#include "Quillmonger/settings/view/ToggleModel.h"

namespace quillmonger {

/// The switch of a setting. A change is written at once, and one from elsewhere is seen at once. Main thread.
class SettingToggle final : public ToggleModel {
 public:
  /// `textKey`: that of the switch's title. `defaults` outlives this object.
  SettingToggle(const char* textKey, defaults::Defaults& defaults, const defaults::Key<bool>& key);

  [[nodiscard]] QString label() const override;
  [[nodiscard]] bool isOn() const override { return m_toggle.isOn(); }
  void flip() override { m_toggle.flip(); }

 private:
  defaults::Toggle m_toggle;
};

}  // namespace quillmonger
