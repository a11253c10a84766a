#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Settings/Pane.h"
#include "Settings/SettingsStyleController.h"
#include "Settings/SettingsWindow.h"

namespace settings {

/// Shows one of the panes at a time, and gives the window that pane's size and title. Main thread.
class SettingsTabViewController final {
 public:
  enum class Animation { off, on };

  /// `singlePaneTitle`: the window's title while there is only one pane. `window` outlives this object.
  SettingsTabViewController(std::vector<Pane> panes, Style style, Animation isAnimated, std::string singlePaneTitle,
                            SettingsWindow& window);
  SettingsTabViewController(const SettingsTabViewController&) = delete;
  SettingsTabViewController& operator=(const SettingsTabViewController&) = delete;

  /// The shown pane; absent until one is shown.
  [[nodiscard]] std::optional<std::size_t> activeTab() const { return m_activeTab; }
  /// In the toolbar's order.
  [[nodiscard]] const SettingsStyleController::Panes& panes() const { return m_panes; }
  [[nodiscard]] SettingsStyleController& settingsStyleController() { return *m_styleController; }

  /// The first pane for an identifier that none has.
  void activateTab(const PaneIdentifier& pane);
  void activateTab(std::size_t pane);
  /// Shows the first pane, unless one was shown before.
  void restoreInitialTab();

 private:
  void present(std::optional<std::size_t> previous);
  void swap(std::optional<std::size_t> previous);
  void crossFade(std::size_t previous);
  void fitWindow(std::size_t pane);
  [[nodiscard]] Frame frameFor(std::size_t pane) const;
  [[nodiscard]] const std::string& titleFor(std::size_t pane) const;
  [[nodiscard]] PaneView& view(std::size_t pane) const { return m_panes.at(pane)->view(); }

  SettingsStyleController::Panes m_panes;
  std::unique_ptr<SettingsStyleController> m_styleController;
  Animation m_isAnimated;
  std::string m_singlePaneTitle;
  SettingsWindow& m_window;
  std::optional<std::size_t> m_activeTab;
};

}  // namespace settings
