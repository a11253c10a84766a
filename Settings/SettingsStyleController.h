#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Foundation/Published.h"
#include "Settings/PaneHostingController.h"

namespace settings {

/// How the toolbar offers the panes.
enum class Style {
  toolbarItems,     ///< a symbol above its title for each
  segmentedControl  ///< one control with a segment for each
};

/// Something that stands in the toolbar.
struct ToolbarItem {
  std::string identifier;
  std::string title;
  ToolbarIcon icon;

  bool operator==(const ToolbarItem&) const = default;
};

/// Builds the toolbar, and says which of its items is selected. Main thread.
class SettingsStyleController {
 public:
  using Panes = std::vector<std::unique_ptr<PaneHostingController>>;
  /// What a chosen item calls, with its pane's index.
  using Delegate = std::function<void(std::size_t pane)>;

  /// `panes` outlives this object.
  explicit SettingsStyleController(const Panes& panes) : m_panes(panes) {}
  SettingsStyleController(const SettingsStyleController&) = delete;
  SettingsStyleController& operator=(const SettingsStyleController&) = delete;
  virtual ~SettingsStyleController() = default;

  Delegate delegate;

  [[nodiscard]] virtual Style style() const = 0;
  /// One for each pane, in their order.
  [[nodiscard]] virtual std::vector<ToolbarItem> toolbar() const = 0;
  /// Whether the window keeps its middle, instead of its left edge, when its width changes.
  [[nodiscard]] virtual bool isKeepingWindowCentered() const = 0;

  [[nodiscard]] foundation::Published<std::optional<std::size_t>>& selectedTab() { return m_selectedTab; }
  void selectTab(std::size_t pane) { m_selectedTab.set(pane); }
  /// The user chose an item. Nothing happens for one that isn't there.
  void choose(std::size_t pane) {
    if (pane < m_panes.size() && delegate) delegate(pane);
  }

 protected:
  [[nodiscard]] const Panes& panes() const { return m_panes; }

 private:
  const Panes& m_panes;
  foundation::Published<std::optional<std::size_t>> m_selectedTab;
};

}  // namespace settings
