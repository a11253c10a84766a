#include "Settings/SettingsWindowController.h"

#include <utility>

#include "Foundation/Fatal.h"

namespace settings {

SettingsWindowController::SettingsWindowController(SettingsWindow& window, std::vector<Pane> panes, Style style,
                                                   SettingsTabViewController::Animation animated,
                                                   SingleItemToolbar hidesToolbarForSingleItem,
                                                   const std::string& singlePaneTitle)
    : m_window(window),
      m_tabViewController(std::move(panes), style, animated, singlePaneTitle, window),
      m_hidesToolbarForSingleItem(hidesToolbarForSingleItem) {}

SettingsWindowController::SettingsWindowController(SettingsWindow& window, Unsupported /*unsupported*/)
    : SettingsWindowController(window, {}, Style::toolbarItems, SettingsTabViewController::Animation::off,
                               SingleItemToolbar::shown, {}) {}

SettingsWindowController::SettingsWindowController(SettingsWindow& window)
    : SettingsWindowController(window, Unsupported()) {
  foundation::stopProcess("init(window:) is not supported, use init(panes:style:animated:hidesToolbarForSingleItem:)");
}

SettingsWindowController::SettingsWindowController(SettingsWindow& window, const defaults::Object& /*coder*/)
    : SettingsWindowController(window, Unsupported()) {
  foundation::stopProcess(
      "init(coder:) is not supported, use "
      "init(panes:style:animated:hidesToolbarForSingleItem:hidesToolbarForSingleItem:)");
}

bool SettingsWindowController::isToolbarShown() const {
  return m_hidesToolbarForSingleItem == SingleItemToolbar::shown || m_tabViewController.panes().size() > 1;
}

void SettingsWindowController::show(const std::optional<PaneIdentifier>& pane) {
  if (pane) {
    m_tabViewController.activateTab(*pane);
  } else {
    m_tabViewController.restoreInitialTab();
  }
  m_window.showWindow();
  m_window.center();
  m_window.setFrameUsingName(frameAutosaveName);
  m_window.setFrameAutosaveName(frameAutosaveName);
  m_window.activate();
}

}  // namespace settings
