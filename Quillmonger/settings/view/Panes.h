#pragma once

#include <functional>

#include "Quillmonger/resources/Appearance.h"
#include "Quillmonger/settings/view/AppearanceSettings.h"
#include "Quillmonger/settings/view/GeneralSettings.h"
#include "Quillmonger/settings/view/IgnoreSettings.h"
#include "Quillmonger/settings/view/IgnoredAppsModel.h"
#include "Quillmonger/settings/view/KeyBindingsSettings.h"
#include "Quillmonger/settings/view/SearchSettingsModel.h"
#include "Settings/Pane.h"
#include "Settings/view/QmlPaneView.h"

namespace quillmonger {

/// What every pane needs. It outlives the panes.
struct PaneSurroundings {
  /// Where the panes are shown.
  settings::QmlPaneView::Parent parent;
  Appearance& appearance;
};

/// The panes of the settings' window. What they show outlives them; functions are asked when the pane is first shown.
[[nodiscard]] settings::Pane generalPane(const PaneSurroundings& surroundings,
                                         std::function<GeneralSettings&()> general);
[[nodiscard]] settings::Pane ignorePane(const PaneSurroundings& surroundings, IgnoreSettings& ignore,
                                        std::function<IgnoredAppsModel&()> apps);
[[nodiscard]] settings::Pane searchPane(const PaneSurroundings& surroundings, SearchSettingsModel& search);
[[nodiscard]] settings::Pane appearancePane(const PaneSurroundings& surroundings, AppearanceSettings& appearance);
[[nodiscard]] settings::Pane keyBindingsPane(const PaneSurroundings& surroundings,
                                             std::function<KeyBindingsSettings&()> keyBindings);

}  // namespace quillmonger
