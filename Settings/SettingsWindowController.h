#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Defaults/Object.h"
#include "Settings/SettingsTabViewController.h"

namespace settings {

/// The window of the settings, built once and kept. Main thread.
class SettingsWindowController final {
 public:
  enum class SingleItemToolbar { shown, hidden };

  /// The name under which the window's place is remembered.
  static constexpr auto frameAutosaveName = "com.ondalis.Settings.FrameAutosaveName";

  /// `panes`: at least one. `window` outlives this object.
  SettingsWindowController(SettingsWindow& window, std::vector<Pane> panes, Style style,
                           SettingsTabViewController::Animation animated, SingleItemToolbar hidesToolbarForSingleItem,
                           const std::string& singlePaneTitle);
  /// A window without panes, and one from an archive, stop the process.
  explicit SettingsWindowController(SettingsWindow& window);
  SettingsWindowController(SettingsWindow& window, const defaults::Object& coder);

  [[nodiscard]] SettingsTabViewController& tabViewController() { return m_tabViewController; }
  /// Not where there is nothing to choose from and none is wanted then.
  [[nodiscard]] bool isToolbarShown() const;

  /// Brings the window to the front with this pane, or else with the one last shown; with the first pane for an
  /// identifier that none has.
  void show(const std::optional<PaneIdentifier>& pane = std::nullopt);

 private:
  struct Unsupported {};
  SettingsWindowController(SettingsWindow& window, Unsupported unsupported);

  SettingsWindow& m_window;
  SettingsTabViewController m_tabViewController;
  SingleItemToolbar m_hidesToolbarForSingleItem;
};

}  // namespace settings
